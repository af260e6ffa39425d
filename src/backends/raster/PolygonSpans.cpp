#include "backends/raster/PolygonSpans.h"

#include <algorithm>
#include <cstdint>

namespace quendle {
namespace {

struct Crossing {
  int x = 0;  // the first pixel on or right of the edge
  int direction = 0;
};

std::int64_t CeilDivide(std::int64_t value, std::int64_t positive) {
  const std::int64_t quotient = value / positive;
  return quotient * positive < value ? quotient + 1 : quotient;
}

// Where the edge crosses row y, if it does: its upper end belongs to it, its lower end doesn't.
void AddCrossing(Point from, Point to, int y, std::vector<Crossing>& crossings) {
  const bool down = from.y < to.y;
  const Point upper = down ? from : to;
  const Point lower = down ? to : from;
  if (y < upper.y || y >= lower.y) return;
  const std::int64_t run = std::int64_t{lower.x} - upper.x;
  const std::int64_t height = std::int64_t{lower.y} - upper.y;
  const std::int64_t x = upper.x + CeilDivide((std::int64_t{y} - upper.y) * run, height);
  crossings.push_back({static_cast<int>(x), down ? 1 : -1});
}

// Cuts the row's crossings into the runs with a winding number other than 0.
void AddSpans(std::vector<Crossing>& crossings, int y, const Rect& bounds,
              std::vector<PolygonSpan>& spans) {
  std::sort(crossings.begin(), crossings.end(),
            [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
  int winding = 0;
  int start = 0;
  for (const Crossing& crossing : crossings) {
    if (winding == 0) start = crossing.x;
    winding += crossing.direction;
    if (winding != 0) continue;
    const int left = std::max(start, bounds.left);
    const int right = std::min(crossing.x, bounds.right);
    if (left < right) spans.push_back({y, left, right});
  }
}

}  // namespace

std::vector<PolygonSpan> PolygonSpans(std::span<const Point> corners, const Rect& bounds) {
  std::vector<PolygonSpan> spans;
  if (corners.empty()) return spans;
  const auto [highest, lowest] = std::minmax_element(
      corners.begin(), corners.end(), [](const Point& a, const Point& b) { return a.y < b.y; });
  std::vector<Crossing> crossings;
  for (int y = std::max(highest->y, bounds.top); y < std::min(lowest->y, bounds.bottom); ++y) {
    crossings.clear();
    for (std::size_t i = 0; i < corners.size(); ++i) {
      AddCrossing(corners[i], corners[(i + 1) % corners.size()], y, crossings);
    }
    AddSpans(crossings, y, bounds, spans);
  }
  return spans;
}

}  // namespace quendle
