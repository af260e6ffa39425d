#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "backends/desktop/SdlEventTarget.h"
#include "base/TimerQueue.h"
#include "platform/TimerService.h"

namespace quendle {

class StepClock;

// The program's one loop, on one thread: input first, then one due tick, then sleep until either
// comes. It runs nested while a box stands. Engine code runs only from here, never inside a
// callback of a library, so its exceptions leave through Run.
class DesktopEventLoop {
 public:
  // `clock` outlives the loop.
  explicit DesktopEventLoop(Clock& clock) : clock_(clock), timers_(clock) {}
  // On a clock that moves only from here: ticks come exactly when they are due.
  explicit DesktopEventLoop(StepClock& clock);

  TimerService& Timers() { return timers_; }

  // Targets take events while they live.
  void Add(const std::shared_ptr<SdlEventTarget>& target) { targets_.push_back(target); }

  // Runs until `done` holds; it is asked after every event and tick.
  void Run(const std::function<bool()>& done);

  // Brings all that is seen up to date now, and not at the end of the event.
  void Settle();
  // Number of the window that takes input: the last one that stands alone, else the first there
  // is; 0 without any.
  std::uint32_t WindowInUse();

  // While it lives, input reaches one target alone.
  class Modal {
   public:
    Modal(DesktopEventLoop& loop, SdlEventTarget& target) : loop_(loop) {
      loop_.modal_.push_back(&target);
    }
    ~Modal() { loop_.modal_.pop_back(); }
    Modal(const Modal&) = delete;
    Modal& operator=(const Modal&) = delete;

   private:
    DesktopEventLoop& loop_;
  };

 private:
  void PassQuitOn();
  bool HandleWaiting(const std::function<bool()>& done);
  void Dispatch(const SDL_Event& event);
  // Fires what is due next; false when nothing is.
  bool FireDue();
  bool FireDueExactly();
  int SleepMilliseconds();
  std::vector<std::shared_ptr<SdlEventTarget>> Targets();
  void AllowDrops();
  bool TakesInput(const SdlEventTarget& target) const;

  Clock& clock_;
  StepClock* steps_ = nullptr;  // clock_, when it is one that moves only from here
  TimerQueue timers_;
  std::vector<std::weak_ptr<SdlEventTarget>> targets_;
  std::vector<SdlEventTarget*> modal_;
  bool quit_is_wanted_ = false;  // and not all that stands has been told
};

}  // namespace quendle
