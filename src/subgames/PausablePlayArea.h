#pragma once

#include <cstdint>
#include <memory>

#include "subgames/CellPlayArea.h"

namespace quendle {

// What the blinker and the bobbler share: ticks that can wait while a game goes on. Only the
// blinker makes them wait.
class PausablePlayArea : public CellPlayArea {
 public:
  using CellPlayArea::CellPlayArea;

  void Describe(Inspector& inspector) const override;

 protected:
  void StartGame() override;

  void LetTicksRun() { m_nRunState = kRuns; }
  void HoldTicks() { m_nRunState = kWaits; }
  // A game runs, and its ticks don't wait.
  bool TicksRun() const { return m_nRunState == kRuns && !Stopped(); }

 private:
  static constexpr std::int16_t kRuns = 1;
  static constexpr std::int16_t kWaits = 2;

  std::int16_t m_nRunState = 0;
};

}  // namespace quendle
