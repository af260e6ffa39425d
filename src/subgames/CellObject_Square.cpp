#include "subgames/CellObject_Square.h"

#include <memory>

#include "base/Numbers.h"
#include "base/Text.h"
#include "script/ActionText.h"
#include "subgames/PlayAreaCallbacks.h"

namespace quendle {

void CellObject_Square::TurnOn(std::int16_t x, std::int16_t y) {
  x_ = x;
  y_ = y;
  TurnOn();
}

void CellObject_Square::SetGoal(std::int16_t x, std::int16_t y, std::int16_t steps) {
  x_goal_ = x;
  y_goal_ = y;
  steps_ = steps;
  step_ = 0;
  moving_ = true;
}

void CellObject_Square::Update() {
  if (moving_) {
    Step();
  } else {
    Setxpos(x_);
    Setypos(y_);
  }
}

void CellObject_Square::Step() {
  const double part = static_cast<double>(step_) / steps_;
  Setxpos(ToInt16((1 - part) * x_ + part * x_goal_, "xpos of a tile"));
  Setypos(ToInt16((1 - part) * y_ + part * y_goal_, "ypos of a tile"));
  if (++step_ != steps_) return;
  x_ = x_goal_;
  y_ = y_goal_;
  moving_ = false;
  auto board = std::dynamic_pointer_cast<SquareBoard>(Parent());
  if (board != nullptr) board->AnimationDone();
}

CoordObject CellObject_Square::GetCurrentPosition() const {
  CoordObject position;
  position.SetParams(x_, y_);
  return position;
}

bool CellObject_Square::IsUnder(int dx, int dy) const {
  // Closed edges: two tiles that touch can both be under a point.
  return dx >= 0 && dy >= 0 && dx <= width() && dy <= height();
}

void CellObject_Square::UpdateGameObject(std::int16_t x, std::int16_t y, const ActionText& action) {
  if (!ContainsNoCase(action.Text(), "mousedown") && !ContainsNoCase(action.Text(), "mouseclick")) {
    return;
  }
  const std::int16_t dx = ToInt16(x - xpos(), "x on a tile");
  const std::int16_t dy = ToInt16(y - ypos(), "y on a tile");
  if (IsUnder(dx, dy)) {
    RunSound("owww");
    auto board = std::dynamic_pointer_cast<SquareBoard>(Parent());
    if (board != nullptr) board->SquareClicked(*this, CurrentState());
  }
  Inner().UpdateGameObject(dx, dy, action);
}

void CellObject_Square::Describe(Inspector& inspector) const {
  CellObject::Describe(inspector);
  inspector.Flag("moving", moving_);
  inspector.Field("steps", steps_);
  inspector.Field("step number", step_);
  inspector.Field("goal x", x_goal_);
  inspector.Field("goal y", y_goal_);
  inspector.Field("current x", x_);
  inspector.Field("current y", y_);
}

}  // namespace quendle
