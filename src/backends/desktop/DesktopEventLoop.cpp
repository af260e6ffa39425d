#include "backends/desktop/DesktopEventLoop.h"

#include <SDL.h>

#include <algorithm>
#include <utility>

#include "backends/desktop/StepClock.h"

namespace quendle {
namespace {

constexpr int kLongestSleep = 500;

// The number of the window an event is for; 0 for events that are for all.
Uint32 WindowOf(const SDL_Event& event) {
  switch (event.type) {
    case SDL_WINDOWEVENT:
      return event.window.windowID;
    case SDL_KEYDOWN:
    case SDL_KEYUP:
      return event.key.windowID;
    case SDL_TEXTINPUT:
      return event.text.windowID;
    case SDL_MOUSEMOTION:
      return event.motion.windowID;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
      return event.button.windowID;
    case SDL_MOUSEWHEEL:
      return event.wheel.windowID;
    case SDL_DROPFILE:
      return event.drop.windowID;
    default:
      return 0;
  }
}

bool IsTyped(const SDL_Event& event) {
  return event.type == SDL_KEYDOWN || event.type == SDL_KEYUP || event.type == SDL_TEXTINPUT;
}

bool IsInput(const SDL_Event& event) {
  if (event.type == SDL_WINDOWEVENT) {
    return event.window.event == SDL_WINDOWEVENT_CLOSE ||
           event.window.event == SDL_WINDOWEVENT_LEAVE;
  }
  return IsTyped(event) || event.type == SDL_MOUSEMOTION || event.type == SDL_MOUSEBUTTONDOWN ||
         event.type == SDL_MOUSEBUTTONUP || event.type == SDL_MOUSEWHEEL ||
         event.type == SDL_DROPFILE;
}

bool IsUpkeep(const SDL_Event& event) {
  return event.type == SDL_WINDOWEVENT || event.type == SDL_RENDER_TARGETS_RESET ||
         event.type == SDL_RENDER_DEVICE_RESET;
}

// The library leaves the name of a dropped file to whoever takes the event.
class DroppedName {
 public:
  explicit DroppedName(const SDL_Event& event)
      : name_(event.type == SDL_DROPFILE ? event.drop.file : nullptr) {}
  ~DroppedName() { SDL_free(name_); }
  DroppedName(const DroppedName&) = delete;
  DroppedName& operator=(const DroppedName&) = delete;

 private:
  char* name_;
};

// Of moves that queue up only the last tells where the pointer is.
bool IsOvertaken(const SDL_Event& event) {
  if (event.type != SDL_MOUSEMOTION) return false;
  SDL_Event next;
  int waiting = SDL_PeepEvents(&next, 1, SDL_PEEKEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT);
  return waiting == 1 && next.type == SDL_MOUSEMOTION &&
         next.motion.windowID == event.motion.windowID && next.motion.state == event.motion.state;
}

}  // namespace

DesktopEventLoop::DesktopEventLoop(StepClock& clock)
    : clock_(clock), steps_(&clock), timers_(clock) {}

void DesktopEventLoop::Run(const std::function<bool()>& done) {
  while (!done()) {
    if (quit_is_wanted_) {
      PassQuitOn();
      if (done()) return;
    }
    if (HandleWaiting(done)) return;
    if (FireDue()) continue;
    Settle();
    SDL_WaitEventTimeout(nullptr, SleepMilliseconds());
  }
}

// A box goes first. The loop behind it finds the wish still open when it has gone, so that whoever
// asked the box has its answer by then.
void DesktopEventLoop::PassQuitOn() {
  if (!modal_.empty()) {
    modal_.back()->HandleQuit();
    return;
  }
  quit_is_wanted_ = false;
  Settle();  // a form that was just put on screen is told, not the one before it
  for (const auto& target : Targets()) target->HandleQuit();
}

// Handles the events that wait; true if `done` came to hold.
bool DesktopEventLoop::HandleWaiting(const std::function<bool()>& done) {
  SDL_Event event;
  while (SDL_PollEvent(&event) != 0) {
    if (IsOvertaken(event)) continue;
    DroppedName dropped(event);
    Dispatch(event);
    if (done()) return true;
  }
  return false;
}

void DesktopEventLoop::Dispatch(const SDL_Event& event) {
  // Held while they are called: a target may be dropped by its own event.
  std::vector<std::shared_ptr<SdlEventTarget>> targets = Targets();
  if (event.type == SDL_QUIT) {
    quit_is_wanted_ = true;
    PassQuitOn();
    return;
  }
  // A press behind a box may have given the keyboard to the window there.
  Uint32 window = IsTyped(event) && !modal_.empty() ? modal_.back()->WindowId() : WindowOf(event);
  for (const auto& target : targets) {
    if (window != 0 && target->WindowId() != window) continue;
    if (IsUpkeep(event)) target->HandleUpkeep(event);
    if (IsInput(event) && TakesInput(*target)) target->HandleInput(event);
  }
}

bool DesktopEventLoop::FireDue() {
  std::string fired;
  return steps_ != nullptr ? FireDueExactly() : timers_.FireNext(clock_.Monotonic(), fired);
}

bool DesktopEventLoop::FireDueExactly() {
  const Milliseconds now = steps_->Reachable();
  Milliseconds due{0};
  if (!timers_.NextDue(due) || due > now) {
    steps_->AdvanceTo(now);
    return false;
  }
  steps_->AdvanceTo(due);
  // All that are due together: no input comes between them.
  for (std::string fired; timers_.FireNext(steps_->Monotonic(), fired);) {
  }
  return true;
}

void DesktopEventLoop::Settle() {
  for (const auto& target : Targets()) target->Settle();
  AllowDrops();
}

// The library has one switch for all windows, and turning it costs a round of the window system.
void DesktopEventLoop::AllowDrops() {
  const auto targets = Targets();
  const bool wanted = std::any_of(targets.begin(), targets.end(), [this](const auto& target) {
    return TakesInput(*target) && target->TakesDrops();
  });
  if (wanted == (SDL_EventState(SDL_DROPFILE, SDL_QUERY) == SDL_ENABLE)) return;
  SDL_EventState(SDL_DROPFILE, wanted ? SDL_ENABLE : SDL_DISABLE);
}

std::uint32_t DesktopEventLoop::WindowInUse() {
  for (const auto& target : Targets()) {
    if (TakesInput(*target) && target->WindowId() != 0) return target->WindowId();
  }
  return 0;
}

int DesktopEventLoop::SleepMilliseconds() {
  Milliseconds due{0};
  if (!timers_.NextDue(due)) return kLongestSleep;
  auto wait = (due - (steps_ != nullptr ? steps_->Reachable() : clock_.Monotonic())).count();
  return static_cast<int>(std::clamp<decltype(wait)>(wait, 0, kLongestSleep));
}

std::vector<std::shared_ptr<SdlEventTarget>> DesktopEventLoop::Targets() {
  std::vector<std::shared_ptr<SdlEventTarget>> alive;
  std::erase_if(targets_, [](const auto& target) { return target.expired(); });
  for (const auto& target : targets_) {
    if (auto held = target.lock()) alive.push_back(std::move(held));
  }
  return alive;
}

bool DesktopEventLoop::TakesInput(const SdlEventTarget& target) const {
  return modal_.empty() || modal_.back() == &target || target.StandsBeside();
}

}  // namespace quendle
