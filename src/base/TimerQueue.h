#pragma once

#include <map>
#include <vector>

#include "platform/TimerService.h"

namespace quendle {

// The timers of one thread, on any clock: whoever owns it calls the due ticks.
class TimerQueue : public TimerService {
 public:
  static constexpr Milliseconds kShortestInterval{10};
  static constexpr int kLargestId = 32767;

  // `clock` gives the start of a timer's first interval and must outlive the queue.
  explicit TimerQueue(Clock& clock) : clock_(clock) {}

  // More than 32767 timers at once are fatal.
  int SetTimer(Milliseconds interval, std::string callback_name, Callback callback) override;
  void KillTimer(int id) override;
  std::vector<TimerInfo> Running() const override;

  // The earliest due time; nothing is due without timers.
  bool NextDue(Milliseconds& due) const;
  // Fires the one tick that is due first at or before `now`, if any: its name goes to `fired`.
  // A timer that fell behind fires once and is due again one interval after `now`.
  bool FireNext(Milliseconds now, std::string& fired);

 private:
  struct Timer {
    TimerInfo info;
    Callback callback;
    long order = 0;  // of the start, among timers due together
  };
  int SmallestFreeId() const;
  const Timer* Earliest() const;

  Clock& clock_;
  std::map<int, Timer> timers_;
  long started_ = 0;
};

}  // namespace quendle
