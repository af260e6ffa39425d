#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace quendle {

// The points of one name.
class PointItem {
 public:
  const std::string& Name() const { return name_; }
  void SetName(std::string name) { name_ = std::move(name); }
  std::int16_t Points() const { return points_; }
  void SetPoints(std::int16_t points) { points_ = points; }

 private:
  std::string name_;
  std::int16_t points_ = 0;
};

}  // namespace quendle
