#include "subgames/GoalCellObject.h"

namespace quendle {

void GoalCellObject::TurnOn(std::int16_t area_width, std::int16_t area_height) {
  UpdateValidMoveArea(0, area_width, area_height);
  TurnOn();
}

void GoalCellObject::UpdateValidMoveArea(std::int16_t, std::int16_t width, std::int16_t height) {
  area_width_ = width;
  area_height_ = height;
}

void GoalCellObject::SetGoal(std::int16_t x, std::int16_t y) {
  x_goal_ = x;
  y_goal_ = y;
}

void GoalCellObject::StandAtGoal() {
  Setxpos(x_goal_);
  Setypos(y_goal_);
}

void GoalCellObject::Describe(Inspector& inspector) const {
  CellObject::Describe(inspector);
  inspector.Field("XGoal", x_goal_);
  inspector.Field("YGoal", y_goal_);
  inspector.Field("area width", area_width_);
  inspector.Field("area height", area_height_);
}

}  // namespace quendle
