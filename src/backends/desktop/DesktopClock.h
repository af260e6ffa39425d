#pragma once

#include <chrono>

#include "platform/Clock.h"

namespace quendle {

// The system's clocks: local time of day and the steady clock, which starts at 0.
class DesktopClock : public Clock {
 public:
  double TimeOfDay() override;
  Milliseconds Monotonic() override;

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace quendle
