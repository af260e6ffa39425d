#include "backends/desktop/StepClock.h"

#include <cmath>

namespace quendle {

StepClock::StepClock(Clock& real) : real_(real), lost_(real.Monotonic()) {
  // To the millisecond, so that it can be told in a number of a few digits.
  stepped_.SetTimeOfDay(std::floor(real.TimeOfDay() * 1000) / 1000);
}

Milliseconds StepClock::Reachable() {
  const Milliseconds behind = real_.Monotonic() - lost_ - stepped_.Monotonic();
  if (behind > kFarthestBehind) lost_ += behind - kFarthestBehind;
  return real_.Monotonic() - lost_;
}

}  // namespace quendle
