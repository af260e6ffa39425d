#include "backends/headless/VirtualClock.h"

#include <algorithm>
#include <cmath>

namespace quendle {
namespace {

double Seconds(Milliseconds time) { return static_cast<double>(time.count()) / 1000.0; }

}  // namespace

double VirtualClock::TimeOfDay() {
  const double seconds = std::fmod(midnight_ + Seconds(now_), kSecondsOfDay);
  return seconds < 0 ? seconds + kSecondsOfDay : seconds;
}

void VirtualClock::SetTimeOfDay(double seconds) { midnight_ = seconds - Seconds(now_); }

void VirtualClock::AdvanceTo(Milliseconds moment) { now_ = std::max(now_, moment); }

}  // namespace quendle
