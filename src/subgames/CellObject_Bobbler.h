#pragma once

#include <cstdint>

#include "subgames/TwoStateCellObject.h"

namespace quendle {

// A good or bad cell that drifts around the field.
class CellObject_Bobbler : public TwoStateCellObject {
 public:
  // Draws a small speed on each axis; an axis of speed 0 stands still.
  explicit CellObject_Bobbler(ObjectWorld& world);

  // Moves on. At a side the cell takes its full speed away from it.
  void Update() override;
  // True if a corner of this cell is on `other`.
  bool DidWeHitCell(GameObjectInterface& other);

  // Pixels a tick.
  std::int16_t GetHDisposition() const { return h_; }
  std::int16_t GetVDisposition() const { return v_; }
  void SetHDisposition(std::int16_t h) { h_ = h; }
  void SetVDisposition(std::int16_t v) { v_ = v; }

  void Describe(Inspector& inspector) const override;

 private:
  std::int16_t h_ = 0;
  std::int16_t v_ = 0;
};

}  // namespace quendle
