#include "backends/forms/Path.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace quendle {
namespace {

constexpr int kCurveSteps = 20;
constexpr double kStepDegrees = 6;

double Radians(double degrees) { return degrees * std::numbers::pi / 180; }

}  // namespace

Path Path::Ellipse(Vec centre, double radius_x, double radius_y) {
  Path path = Arc(centre, radius_x, radius_y, 0, 360 - kStepDegrees);
  return path.Close();
}

Path Path::RoundRect(double x, double y, double width, double height, double radius) {
  radius = std::min({radius, width / 2, height / 2});
  const std::pair<Vec, double> corners[] = {{{x + width - radius, y + radius}, -90},
                                            {{x + width - radius, y + height - radius}, 0},
                                            {{x + radius, y + height - radius}, 90},
                                            {{x + radius, y + radius}, 180}};
  Contour contour;
  for (const auto& [centre, start] : corners) {
    Path corner = Arc(centre, radius, radius, start, start + 90);
    const auto& points = corner.contours_.front().points;
    contour.points.insert(contour.points.end(), points.begin(), points.end());
  }
  contour.closed = true;
  Path path;
  path.contours_.push_back(std::move(contour));
  return path;
}

Path Path::Polygon(std::vector<Vec> points) {
  Path path;
  path.contours_.push_back({std::move(points), true});
  return path;
}

Path Path::Arc(Vec centre, double radius_x, double radius_y, double from, double to) {
  Contour contour;
  int steps = std::max(1, static_cast<int>(std::lround(std::abs(to - from) / kStepDegrees)));
  for (int i = 0; i <= steps; ++i) {
    double angle = Radians(from + (to - from) * i / steps);
    contour.points.push_back(
        {centre.x + radius_x * std::cos(angle), centre.y + radius_y * std::sin(angle)});
  }
  Path path;
  path.contours_.push_back(std::move(contour));
  return path;
}

Path& Path::MoveTo(double x, double y) {
  contours_.push_back({{{x, y}}, false});
  return *this;
}

Path& Path::LineTo(double x, double y) {
  if (contours_.empty()) return MoveTo(x, y);
  contours_.back().points.push_back({x, y});
  return *this;
}

Path& Path::CurveTo(Vec first, Vec second, Vec end) {
  if (contours_.empty()) MoveTo(first.x, first.y);
  Vec start = contours_.back().points.back();
  for (int i = 1; i <= kCurveSteps; ++i) {
    double t = static_cast<double>(i) / kCurveSteps;
    double u = 1 - t;
    double a = u * u * u;
    double b = 3 * u * u * t;
    double c = 3 * u * t * t;
    double d = t * t * t;
    contours_.back().points.push_back({a * start.x + b * first.x + c * second.x + d * end.x,
                                       a * start.y + b * first.y + c * second.y + d * end.y});
  }
  return *this;
}

Path& Path::Close() {
  if (!contours_.empty()) contours_.back().closed = true;
  return *this;
}

Path& Path::Add(const Path& other) {
  contours_.insert(contours_.end(), other.contours_.begin(), other.contours_.end());
  return *this;
}

Path Path::Turned(Vec around, double degrees) const {
  double cosine = std::cos(Radians(degrees));
  double sine = std::sin(Radians(degrees));
  Path turned = *this;
  for (Contour& contour : turned.contours_) {
    for (Vec& point : contour.points) {
      double x = point.x - around.x;
      double y = point.y - around.y;
      point = {around.x + x * cosine - y * sine, around.y + x * sine + y * cosine};
    }
  }
  return turned;
}

Path Path::Mirrored(double x) const {
  Path mirrored = *this;
  for (Contour& contour : mirrored.contours_) {
    for (Vec& point : contour.points) point.x = 2 * x - point.x;
  }
  return mirrored;
}

}  // namespace quendle
