#pragma once

#include <vector>

namespace quendle {

struct Vec {
  double x = 0;
  double y = 0;
};

// Closed or open outlines of a drawing, in form units; curves are flattened as they are added.
class Path {
 public:
  static Path Ellipse(Vec centre, double radius_x, double radius_y);
  static Path RoundRect(double x, double y, double width, double height, double radius);
  static Path Polygon(std::vector<Vec> points);
  // Part of an ellipse from `from` to `to` degrees; 0 is right, 90 is down.
  static Path Arc(Vec centre, double radius_x, double radius_y, double from, double to);

  Path& MoveTo(double x, double y);
  Path& LineTo(double x, double y);
  // A cubic curve by its two control points.
  Path& CurveTo(Vec first, Vec second, Vec end);
  Path& Close();
  // Adds the outlines of another path.
  Path& Add(const Path& other);
  // The path turned by `degrees` clockwise around a point.
  Path Turned(Vec around, double degrees) const;
  // The path mirrored at the vertical line through `x`.
  Path Mirrored(double x) const;

  struct Contour {
    std::vector<Vec> points;
    bool closed = false;
  };
  const std::vector<Contour>& Contours() const { return contours_; }

 private:
  std::vector<Contour> contours_;
};

}  // namespace quendle
