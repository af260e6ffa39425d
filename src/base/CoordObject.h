#pragma once

#include <cstdint>

namespace quendle {

// A point of real numbers; set through whole ones it holds whole ones.
struct CoordObject {
  double X = 0;
  double Y = 0;
  void SetParams(std::int16_t x, std::int16_t y) {
    X = x;
    Y = y;
  }
};

}  // namespace quendle
