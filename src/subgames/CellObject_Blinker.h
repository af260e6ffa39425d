#pragma once

#include "subgames/TwoStateCellObject.h"

namespace quendle {

// A brick, which never moves, or the paddle (the good cell), which stands at its goal.
class CellObject_Blinker : public TwoStateCellObject {
 public:
  using TwoStateCellObject::TwoStateCellObject;

  void Update() override {
    if (IsGoodCell()) StandAtGoal();
  }
};

}  // namespace quendle
