#include "backends/headless/VirtualClock.h"

#include <algorithm>
#include <cmath>

namespace quendle {
namespace {

constexpr double kMillisecondsOfDay = VirtualClock::kSecondsOfDay * 1000;

double Count(Milliseconds time) { return static_cast<double>(time.count()); }

}  // namespace

// Reckoned in milliseconds, where sums are exact: the same time of day is the same number, however
// long the clock has run.
double VirtualClock::TimeOfDay() {
  const double time = std::fmod(midnight_ + Count(now_), kMillisecondsOfDay);
  return (time < 0 ? time + kMillisecondsOfDay : time) / 1000;
}

void VirtualClock::SetTimeOfDay(double seconds) {
  midnight_ = std::round(seconds * 1e6) / 1e3 - Count(now_);
}

void VirtualClock::AdvanceTo(Milliseconds moment) { now_ = std::max(now_, moment); }

}  // namespace quendle
