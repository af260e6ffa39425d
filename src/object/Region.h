#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "base/TextStream.h"

namespace quendle {

// A named rectangle of a frame, relative to the frame's top left on the screen; all edges belong.
class Region {
 public:
  void SetName(std::string name) { name_ = std::move(name); }
  const std::string& Name() const { return name_; }
  void SetX1(std::int16_t x) { x1_ = x; }
  std::int16_t X1() const { return x1_; }
  void SetY1(std::int16_t y) { y1_ = y; }
  std::int16_t Y1() const { return y1_; }
  void SetX2(std::int16_t x) { x2_ = x; }
  std::int16_t X2() const { return x2_; }
  void SetY2(std::int16_t y) { y2_ = y; }
  std::int16_t Y2() const { return y2_; }

  bool Holds(int x, int y) const { return x >= x1_ && x <= x2_ && y >= y1_ && y <= y2_; }

 private:
  std::string name_;
  std::int16_t x1_ = 0;
  std::int16_t y1_ = 0;
  std::int16_t x2_ = 0;
  std::int16_t y2_ = 0;
};

// Reads a region file: records of five lines, or the line "nothing" for an empty list.
std::vector<Region> LoadRegions(TextStream& stream);

}  // namespace quendle
