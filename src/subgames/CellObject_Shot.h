#pragma once

#include <cstdint>

#include "subgames/GoalCellObject.h"

namespace quendle {

// A shot: of the player (the good cell), which flies up from its goal, or of an enemy, which flies
// down.
class CellObject_Shot : public GoalCellObject {
 public:
  explicit CellObject_Shot(ObjectWorld& world);

  // Does nothing: a shot stays on until it is dropped.
  void TurnOff() override {}
  void AddChildObject(ObjectRef) override {}

  // Ready to fly again, in the state "default".
  void Reset();
  bool GettingDestroyed() const { return getting_destroyed_; }
  // Leaves the shot two ticks to live, whatever the flag says; true shows the state "bad".
  void SetGettingDestroyed(bool destroyed);
  void Update() override;
  void Describe(Inspector& inspector) const override;

 private:
  void FlyUp();
  void FlyDown();

  bool getting_destroyed_ = false;
  std::int16_t life_ = 0;
  std::int16_t offset_ = 0;  // flown so far
  std::int16_t limit_ = 0;   // the lowest y
  std::int16_t speed_ = 0;   // pixels a tick
};

}  // namespace quendle
