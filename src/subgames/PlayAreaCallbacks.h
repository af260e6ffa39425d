// What a cell asks of the play area that it belongs to.
#pragma once

#include <cstdint>
#include <string>

namespace quendle {

class CellObject_Square;

class SquareBoard {
 public:
  virtual ~SquareBoard() = default;
  // A tile was clicked while it showed the state `state`.
  virtual void SquareClicked(CellObject_Square& cell, const std::string& state) = 0;
  // A tile stands at its goal.
  virtual void AnimationDone() = 0;
};

class EnemyFireTarget {
 public:
  virtual ~EnemyFireTarget() = default;
  // An enemy at this point of the field fires.
  virtual void EnemyFire(std::int16_t x, std::int16_t y) = 0;
};

}  // namespace quendle
