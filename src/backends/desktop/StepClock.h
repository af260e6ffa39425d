#pragma once

#include "backends/headless/VirtualClock.h"
#include "platform/Clock.h"

namespace quendle {

// The clock of a game that is recorded or played back: it follows a real one, but stands still
// while something happens. Every tick comes at the very moment at which it is due, none is lost,
// and what the player does comes between ticks; so the same session in virtual time is the same to
// the last tick. A machine that falls far behind makes the game slower instead of skipping ticks.
class StepClock : public Clock {
 public:
  // `real` must outlive this clock.
  explicit StepClock(Clock& real);

  double TimeOfDay() override { return stepped_.TimeOfDay(); }
  Milliseconds Monotonic() override { return stepped_.Monotonic(); }

  // Where the clock may go now. Whoever runs the ticks goes there from due time to due time.
  Milliseconds Reachable();
  void AdvanceTo(Milliseconds moment) { stepped_.AdvanceTo(moment); }

 private:
  static constexpr Milliseconds kFarthestBehind{250};

  Clock& real_;
  VirtualClock stepped_;
  Milliseconds lost_;  // by which the real clock is ahead for good
};

}  // namespace quendle
