#include "media/SplineState.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "base/TextStream.h"

namespace quendle {
namespace {

// Along a falling axis, and one that stands, the target is reached from above.
bool AxisReached(double step, double target, double position) {
  return step > 0 ? position >= target : target >= position;
}

int LastIndex(const std::vector<std::string>& list) { return static_cast<int>(list.size()) - 1; }

}  // namespace

CoordObject SplineState::GetNextCoords() {
  if (done_) return current_;
  if (PointReached()) index_ = SaturatingIncrement(index_);
  if (index_ <= LastIndex(x_list_)) TakeStep();
  if (PointReached() && index_ == LastIndex(x_list_)) {
    if (loops_) {
      GoToFirstPoint();
    } else {
      done_ = true;
    }
  }
  return current_;
}

void SplineState::ProcessDirective(TextStream& stream) {
  stream.ReadLine("the first line of a path");
  stream.ReadLine("the second line of a path");
  loops_ = EqualsNoCase(stream.ReadLine("the loop word of a path"), "loop");
  name_ = stream.ReadLine("the name of a path");
  speed_ = ReadInt16(stream, "the speed of a path");
  x_list_ = SplitTokens(stream.ReadLine("the x values of a path"), ' ');
  y_list_ = SplitTokens(stream.ReadLine("the y values of a path"), ' ');
  place_ = stream.Place();
  stream.ReadLine("the eighth line of a path");
  stream.ReadLine("the last line of a path");
  done_ = false;
  GoToFirstPoint();
}

void SplineState::GoToFirstPoint() {
  index_ = 0;
  current_x_ = X(0);
  current_y_ = Y(0);
  MoveTo(current_x_, current_y_);
}

bool SplineState::PointReached() const {
  if (index_ <= 0) return true;
  const double x = X(index_), y = Y(index_);
  return AxisReached(x - X(index_ - 1), x, current_.X) &&
         AxisReached(y - Y(index_ - 1), y, current_.Y);
}

// The sign of the slope and that of the segment work against each other where one axis falls and
// the other rises: y then moves against the segment. Paths are drawn with that in mind.
void SplineState::TakeStep() {
  const double dy = Y(index_) - Y(index_ - 1);
  const double sign_y = dy < 0 ? -1 : 1;
  const double k = RoundHalfEven(X(index_) - X(index_ - 1));
  const double sign_x = k < 0 ? -1 : 1;
  if (k != 0) {
    current_y_ += speed_ * (dy / k) * sign_y;
    current_x_ += speed_ * sign_x;
  } else {
    current_y_ += speed_ * sign_y;
  }
  MoveTo(current_x_, current_y_);
}

void SplineState::MoveTo(double x, double y) {
  current_.SetParams(ToInt16(x, "x position on a path", place_),
                     ToInt16(y, "y position on a path", place_));
}

double SplineState::At(const std::vector<std::string>& list, int index, const char* axis) const {
  if (index < 0 || index > LastIndex(list)) {
    throw FatalError("a path goes past its last point: its list of " + std::string(axis) +
                         " values has " + std::to_string(list.size()) +
                         ", and a path needs two points or more",
                     place_);
  }
  const std::optional<double> value = ParseNumber(list[static_cast<std::size_t>(index)]);
  if (!value) {
    throw FatalError("\"" + list[static_cast<std::size_t>(index)] + "\" is not a number (" + axis +
                         " value of a path)",
                     place_);
  }
  return *value;
}

}  // namespace quendle
