#pragma once

#include <cstdint>

#include "base/CoordObject.h"
#include "subgames/CellObject.h"

namespace quendle {

// One sliding tile. Its parent is the board.
class CellObject_Square : public CellObject {
 public:
  using CellObject::CellObject;
  using CellObject::TurnOn;

  // Stands at a point of the play area from the next tick on, and is turned on.
  void TurnOn(std::int16_t x, std::int16_t y);
  // Does nothing: a tile stays on until it is dropped.
  void TurnOff() override {}
  void AddChildObject(ObjectRef) override {}
  void UpdateValidMoveArea(std::int16_t, std::int16_t, std::int16_t) {}

  // Begins a move that takes `steps` ticks.
  void SetGoal(std::int16_t x, std::int16_t y, std::int16_t steps);
  // One tick of a move. The tick after the last one shows the goal; the board hears of the end.
  void Update() override;
  // Where the tile stands, or began its move.
  CoordObject GetCurrentPosition() const;

  // A press or click on the tile makes the sound "owww" and is told to the board; then the tile's
  // script gets it, with the point relative to the tile.
  void UpdateGameObject(std::int16_t x, std::int16_t y, const ActionText& action) override;
  void Describe(Inspector& inspector) const override;

 private:
  void Step();
  bool IsUnder(int dx, int dy) const;

  bool moving_ = false;
  std::int16_t steps_ = 1;
  std::int16_t step_ = 0;
  std::int16_t x_goal_ = 0;
  std::int16_t y_goal_ = 0;
  std::int16_t x_ = 0;
  std::int16_t y_ = 0;
};

}  // namespace quendle
