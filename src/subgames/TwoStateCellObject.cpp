#include "subgames/TwoStateCellObject.h"

namespace quendle {

void TwoStateCellObject::TurnOn(std::int16_t area_width, std::int16_t area_height) {
  state_ = 0;
  hit_recently_ = 0;
  GoalCellObject::TurnOn(area_width, area_height);
}

void TwoStateCellObject::SwitchState() {
  state_ = state_ == 1 ? 0 : 1;
  Inner().ProcessState(state_ == 1 ? "bad" : "default");
}

void TwoStateCellObject::Describe(Inspector& inspector) const {
  GoalCellObject::Describe(inspector);
  inspector.Field("CurrentState", state_);
  inspector.Field("HitRecently", hit_recently_);
}

}  // namespace quendle
