#pragma once

#include <cstdint>
#include <vector>

#include "platform/Geometry.h"

namespace quendle {

// Forms measure in twips; a twip is 1/15 pixel.
inline constexpr int kTwipsPerPixel = 15;

// More points than this don't fit the buffer of the cut.
inline constexpr int kMostPoints = 100;

// One clicked point and the line that leads to it, in twips of the picture.
struct PolygonLine {
  std::int16_t x = 0;
  std::int16_t y = 0;
  std::int16_t previous_x = 0;  // where the line starts: the first line starts at its own point
  std::int16_t previous_y = 0;
  int shape = 0;  // element of Line1 that shows it
};

// The outline around the face as it is clicked, point by point.
class Outline {
 public:
  // Adds the point of a click; twips beyond 16 bits are fatal.
  const PolygonLine& Add(double x, double y);
  // Takes the last point back. With two points both go: a single point is no line.
  void Undo();
  void Clear() { lines_.clear(); }

  // The number of the next line, from 1.
  std::int16_t LineCount() const { return static_cast<std::int16_t>(lines_.size() + 1); }
  const std::vector<PolygonLine>& Lines() const { return lines_; }
  // The points in pixels of the picture, rounded.
  std::vector<Point> PixelPoints() const;

 private:
  std::vector<PolygonLine> lines_;
};

}  // namespace quendle
