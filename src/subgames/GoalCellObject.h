#pragma once

#include <cstdint>

#include "subgames/CellObject.h"

namespace quendle {

// A cell with a goal, from which its rule takes its position.
class GoalCellObject : public CellObject {
 public:
  using CellObject::CellObject;
  using CellObject::TurnOn;

  // Sets the area that the cell may move in, and turns it on.
  virtual void TurnOn(std::int16_t area_width, std::int16_t area_height);
  void UpdateValidMoveArea(std::int16_t ignored, std::int16_t width, std::int16_t height);

  void SetGoal(std::int16_t x, std::int16_t y);
  std::int16_t XGoal() const { return x_goal_; }
  std::int16_t YGoal() const { return y_goal_; }

  void Describe(Inspector& inspector) const override;

 protected:
  // Stands at its goal.
  void StandAtGoal();

 private:
  std::int16_t x_goal_ = 0;
  std::int16_t y_goal_ = 0;
  std::int16_t area_width_ = 0;
  std::int16_t area_height_ = 0;
};

}  // namespace quendle
