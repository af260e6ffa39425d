#pragma once

#include <cstdint>

#include "subgames/TwoStateCellObject.h"

namespace quendle {

// The shooter's player (the good cell) or one of its enemies, which slides left and right from its
// point of the formation and fires at random.
class CellObject_Shooter : public TwoStateCellObject {
 public:
  // Draws a side speed of 3 to 5 pixels a tick.
  explicit CellObject_Shooter(ObjectWorld& world);
  using TwoStateCellObject::TurnOn;

  void TurnOn(std::int16_t area_width, std::int16_t area_height) override;
  // Does nothing: an enemy stays on until it is dropped.
  void TurnOff() override {}
  void AddChildObject(ObjectRef) override {}
  // A shot is asked of the parent, which may be gone.
  void Update() override;
  void Describe(Inspector& inspector) const override;

 private:
  static constexpr std::int16_t kSideRange = 150;
  static constexpr std::int16_t kDownStep = 8;

  void Slide();
  void FireAtRandom();

  const std::int16_t side_speed_;
  std::int16_t side_offset_ = 0;
  // Grows at each turn and is never applied: the enemies stay on their rows.
  std::int16_t down_offset_ = 0;
  std::int16_t fire_odds_ = 0;
  bool to_the_right_ = true;
};

}  // namespace quendle
