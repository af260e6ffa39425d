#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/CoordObject.h"
#include "base/FatalError.h"

namespace quendle {

class TextStream;

// Moves along a path of straight segments, a fixed number of pixels a step.
class SplineState {
 public:
  // Takes a step and gives the new position, whole pixels. A path that is done stays where it is.
  // A path that lacks a point, or a point that isn't a number, is fatal.
  CoordObject GetNextCoords();

  // True when a path that doesn't loop has reached its last point.
  bool IsSplineDone() const { return done_; }

  // Reads the nine lines of a path and goes to its first point. Short or wrong lines are fatal.
  void ProcessDirective(TextStream& stream);

  // What was read, for tools.
  const std::string& Name() const { return name_; }
  bool Loops() const { return loops_; }
  std::int16_t Speed() const { return speed_; }
  const std::vector<std::string>& XList() const { return x_list_; }
  const std::vector<std::string>& YList() const { return y_list_; }

 private:
  bool PointReached() const;
  void TakeStep();
  void GoToFirstPoint();
  void MoveTo(double x, double y);
  double X(int index) const { return At(x_list_, index, "x"); }
  double Y(int index) const { return At(y_list_, index, "y"); }
  double At(const std::vector<std::string>& list, int index, const char* axis) const;

  FilePlace place_;
  std::string name_;
  std::int16_t speed_ = 0;  // pixels a step on the x axis
  bool loops_ = false;
  std::vector<std::string> x_list_;
  std::vector<std::string> y_list_;

  bool done_ = false;
  std::int16_t index_ = 0;  // the point that is moved towards
  double current_x_ = 0;
  double current_y_ = 0;
  CoordObject current_;
};

}  // namespace quendle
