#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/Clock.h"

namespace quendle {

// What a tool sees of a running timer.
struct TimerInfo {
  int id = 0;
  Milliseconds interval{0};
  Milliseconds due{0};   // on the scale of Clock::Monotonic
  std::string callback;  // name of the callback, such as "OnObjectTimer"
};

// Periodic callbacks on the game's one thread.
//
// An interval below 10 ms runs at 10 ms. Ticks don't queue: a timer that fell behind fires once.
// Timers due at the same time fire in the order in which they were started. Ids are the smallest
// free number from 1 and stay below 32768. A tick of a killed id never fires.
class TimerService {
 public:
  using Callback = std::function<void(int id)>;
  virtual ~TimerService() = default;
  // Starts a timer; `callback_name` is for diagnostics. Returns its id, never 0.
  virtual int SetTimer(Milliseconds interval, std::string callback_name, Callback callback) = 0;
  // Stops a timer; an unknown id is ignored.
  virtual void KillTimer(int id) = 0;
  // The running timers in the order in which they were started.
  virtual std::vector<TimerInfo> Running() const = 0;
};

}  // namespace quendle
