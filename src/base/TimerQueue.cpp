#include "base/TimerQueue.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "base/FatalError.h"

namespace quendle {

int TimerQueue::SetTimer(Milliseconds interval, std::string callback_name, Callback callback) {
  const int id = SmallestFreeId();
  if (id > kLargestId) throw FatalError("more than 32767 timers run at once");
  interval = std::max(interval, kShortestInterval);
  TimerInfo info{id, interval, clock_.Monotonic() + interval, std::move(callback_name)};
  timers_.emplace(id, Timer{std::move(info), std::move(callback), started_++});
  return id;
}

void TimerQueue::KillTimer(int id) { timers_.erase(id); }

std::vector<TimerInfo> TimerQueue::Running() const {
  std::vector<const Timer*> timers;
  for (const auto& [id, timer] : timers_) timers.push_back(&timer);
  std::sort(timers.begin(), timers.end(),
            [](const Timer* a, const Timer* b) { return a->order < b->order; });
  std::vector<TimerInfo> running;
  for (const Timer* timer : timers) running.push_back(timer->info);
  return running;
}

bool TimerQueue::NextDue(Milliseconds& due) const {
  const Timer* timer = Earliest();
  if (timer == nullptr) return false;
  due = timer->info.due;
  return true;
}

bool TimerQueue::FireNext(Milliseconds now, std::string& fired) {
  const Timer* earliest = Earliest();
  if (earliest == nullptr || earliest->info.due > now) return false;
  Timer& timer = timers_.at(earliest->info.id);
  timer.info.due += timer.info.interval;
  if (timer.info.due <= now) timer.info.due = now + timer.info.interval;
  fired = timer.info.callback;
  // The callback may kill this timer: it runs from a copy.
  Callback callback = timer.callback;
  callback(timer.info.id);
  return true;
}

int TimerQueue::SmallestFreeId() const {
  const int count = static_cast<int>(timers_.size());
  if (count == 0 || timers_.rbegin()->first == count) return count + 1;  // there is no gap
  int id = 1;
  for (const auto& [used, timer] : timers_) {
    if (used != id) break;
    ++id;
  }
  return id;
}

const TimerQueue::Timer* TimerQueue::Earliest() const {
  const Timer* earliest = nullptr;
  for (const auto& [id, timer] : timers_) {
    if (earliest == nullptr ||
        std::tie(timer.info.due, timer.order) < std::tie(earliest->info.due, earliest->order)) {
      earliest = &timer;
    }
  }
  return earliest;
}

}  // namespace quendle
