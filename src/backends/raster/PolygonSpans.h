#pragma once

#include <span>
#include <vector>

#include "platform/Geometry.h"

namespace quendle {

// A run of pixels in one row; `right` is the first one outside.
struct PolygonSpan {
  int y = 0;
  int left = 0;
  int right = 0;
  friend bool operator==(const PolygonSpan&, const PolygonSpan&) = default;
};

// The pixels within `bounds` that a closed outline winds around (winding fill), from the top, runs
// of a row from the left. A pixel is its top left corner; left and top edges belong to the outline,
// right and bottom edges don't. Exact for corners of 16 bits.
std::vector<PolygonSpan> PolygonSpans(std::span<const Point> corners, const Rect& bounds);

}  // namespace quendle
