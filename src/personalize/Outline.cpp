#include "personalize/Outline.h"

#include "base/Numbers.h"

namespace quendle {
namespace {

int PixelOf(std::int16_t twips) {
  return static_cast<int>(RoundHalfEven(static_cast<double>(twips) / kTwipsPerPixel));
}

}  // namespace

const PolygonLine& Outline::Add(double x, double y) {
  PolygonLine line;
  line.x = ToInt16(x, "x of a point in the picture");
  line.y = ToInt16(y, "y of a point in the picture");
  line.previous_x = lines_.empty() ? line.x : lines_.back().x;
  line.previous_y = lines_.empty() ? line.y : lines_.back().y;
  line.shape = LineCount();
  lines_.push_back(line);
  return lines_.back();
}

void Outline::Undo() {
  const bool both = lines_.size() == 2;
  if (!lines_.empty()) lines_.pop_back();
  if (both) lines_.pop_back();
}

std::vector<Point> Outline::PixelPoints() const {
  std::vector<Point> points;
  for (const PolygonLine& line : lines_) points.push_back({PixelOf(line.x), PixelOf(line.y)});
  return points;
}

}  // namespace quendle
