#include "backends/desktop/DesktopClock.h"

#include <ctime>

namespace quendle {

double DesktopClock::TimeOfDay() {
  auto now = std::chrono::system_clock::now();
  std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  std::tm local{};
  localtime_r(&seconds, &local);
  std::chrono::duration<double> part = now - std::chrono::floor<std::chrono::seconds>(now);
  // A leap second must not reach the next midnight.
  int second = local.tm_sec < 60 ? local.tm_sec : 59;
  return local.tm_hour * 3600 + local.tm_min * 60 + second + part.count();
}

Milliseconds DesktopClock::Monotonic() {
  return std::chrono::duration_cast<Milliseconds>(std::chrono::steady_clock::now() - start_);
}

}  // namespace quendle
