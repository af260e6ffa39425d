#pragma once

#include <cstdint>

#include "subgames/GoalCellObject.h"

namespace quendle {

// A cell that can switch between the states "default" and "bad", and remembers a recent hit.
class TwoStateCellObject : public GoalCellObject {
 public:
  using GoalCellObject::GoalCellObject;
  using GoalCellObject::TurnOn;

  // Also: in the state "default", not hit.
  void TurnOn(std::int16_t area_width, std::int16_t area_height) override;

  void SwitchState();
  // 0 is "default", 1 is "bad". Nothing asks for it: a cell shows its state by itself.
  std::int16_t CellState() const { return state_; }
  // Ticks for which the cell still counts as hit.
  std::int16_t HitRecently() const { return hit_recently_; }
  void SetHitRecently(std::int16_t ticks) { hit_recently_ = ticks; }

  void Describe(Inspector& inspector) const override;

 private:
  std::int16_t state_ = 0;
  std::int16_t hit_recently_ = 0;
};

}  // namespace quendle
