#pragma once

#include <chrono>

namespace quendle {

using Milliseconds = std::chrono::milliseconds;

// The time of day and a clock that never goes back. Virtual under test.
class Clock {
 public:
  virtual ~Clock() = default;
  // Seconds since midnight, with fractions; starts again at 0 at midnight.
  virtual double TimeOfDay() = 0;
  // Time since an arbitrary start; never goes back.
  virtual Milliseconds Monotonic() = 0;
};

}  // namespace quendle
