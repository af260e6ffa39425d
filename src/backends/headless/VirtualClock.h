#pragma once

#include "platform/Clock.h"

namespace quendle {

// Time that passes only when it is told to.
class VirtualClock : public Clock {
 public:
  static constexpr double kSecondsOfDay = 86400;

  double TimeOfDay() override;
  Milliseconds Monotonic() override { return now_; }

  // Sets the time of day, in seconds since midnight; from then on it runs with virtual time.
  void SetTimeOfDay(double seconds);
  // Lets time pass up to `moment`; a moment that has passed already changes nothing.
  void AdvanceTo(Milliseconds moment);

 private:
  Milliseconds now_{0};
  double midnight_ = 0;  // time of day at moment 0, in milliseconds
};

}  // namespace quendle
