// Plays the game wildly in its window for hours that pass in minutes: the desktop backend with all
// that belongs to it, on a clock that leaps from tick to tick. Tells each hour what memory is in
// use, and fails when it grows.
//
//   wild_window CONTENT USER_FOLDER HOURS [SEED]

#include <SDL.h>
#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <vector>

#include "backends/desktop/DesktopBackend.h"
#include "backends/headless/VirtualClock.h"
#include "base/FatalError.h"
#include "base/ProcessEnds.h"
#include "shell/Application.h"

namespace {

using namespace quendle;

constexpr Milliseconds kStep{50};
constexpr int kStepsPerInput = 12;
constexpr double kMostGrowth = 1.05;
constexpr Milliseconds kHour{60 * 60 * 1000};

// The player: acts, or lets time pass, whenever the loop has nothing left to do.
class WildPlayer : public SdlEventTarget {
 public:
  WildPlayer(DesktopEventLoop& loop, VirtualClock& clock, std::minstd_rand& random,
             Milliseconds end)
      : loop_(loop), clock_(clock), random_(random), end_(end) {}

  std::uint32_t WindowId() const override { return 0; }
  void HandleInput(const SDL_Event&) override {}
  void HandleUpkeep(const SDL_Event&) override {}
  void HandleQuit() override {}
  void Settle() override {
    if (clock_.Monotonic() >= end_) return Push(SDL_QUIT);
    if (Pick(kStepsPerInput) == 0) return Act();
    clock_.AdvanceTo(clock_.Monotonic() + kStep);
    Push(SDL_USEREVENT);  // so that nothing waits in real time
  }
  long Inputs() const { return inputs_; }

 private:
  int Pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

  void Push(std::uint32_t type) {
    SDL_Event event{};
    event.type = type;
    SDL_PushEvent(&event);
  }

  void Act() {
    ++inputs_;
    const std::uint32_t window = loop_.WindowInUse();
    const int kind = Pick(1000);
    if (kind < 10) {
      Key(window, kind < 5 ? SDLK_ESCAPE : SDL_Keycode(SDLK_a + Pick(26)));
    } else if (kind < 30) {
      WindowEvent(window, SDL_WINDOWEVENT_FOCUS_LOST);
      WindowEvent(window, SDL_WINDOWEVENT_FOCUS_GAINED);
    } else if (kind < 32) {
      WindowEvent(window, SDL_WINDOWEVENT_CLOSE);
    } else {
      Point(window, kind % 3 != 0);
    }
    Push(SDL_USEREVENT);
  }

  void Key(std::uint32_t window, SDL_Keycode code) {
    for (const std::uint32_t type : {SDL_KEYDOWN, SDL_KEYUP}) {
      SDL_Event event{};
      event.type = type;
      event.key.windowID = window;
      event.key.keysym.sym = code;
      SDL_PushEvent(&event);
    }
  }

  void WindowEvent(std::uint32_t window, std::uint8_t what) {
    SDL_Event event{};
    event.type = SDL_WINDOWEVENT;
    event.window.windowID = window;
    event.window.event = what;
    SDL_PushEvent(&event);
  }

  void Point(std::uint32_t window, bool press) {
    int width = 800;
    int height = 600;
    if (SDL_Window* found = SDL_GetWindowFromID(window)) SDL_GetWindowSize(found, &width, &height);
    const int x = Pick(std::max(width, 1));
    const int y = Pick(std::max(height, 1));
    SDL_Event move{};
    move.type = SDL_MOUSEMOTION;
    move.motion.windowID = window;
    move.motion.x = x;
    move.motion.y = y;
    SDL_PushEvent(&move);
    if (!press) return;
    for (const std::uint32_t type : {SDL_MOUSEBUTTONDOWN, SDL_MOUSEBUTTONUP}) {
      SDL_Event event{};
      event.type = type;
      event.button.windowID = window;
      event.button.button = SDL_BUTTON_LEFT;
      event.button.clicks = 1;
      event.button.x = x;
      event.button.y = y;
      SDL_PushEvent(&event);
    }
  }

  DesktopEventLoop& loop_;
  VirtualClock& clock_;
  std::minstd_rand& random_;
  Milliseconds end_;
  long inputs_ = 0;
};

// One game after another until the hours are over.
class WildHours {
 public:
  WildHours(GameOptions options, unsigned seed) : options_(std::move(options)), random_(seed) {}

  // False when a game failed.
  bool Play(Milliseconds end) {
    while (clock_.Monotonic() < end) {
      if (!PlayGame(end)) return false;
    }
    return true;
  }
  VirtualClock& Clock() { return clock_; }
  long Games() const { return games_; }
  long Inputs() const { return inputs_; }

 private:
  bool PlayGame(Milliseconds end) {
    ++games_;
    DesktopBackend backend("wild", options_, GameFolders::Find(options_, "wild", "."), &clock_);
    const auto player = std::make_shared<WildPlayer>(backend.Loop(), clock_, random_, end);
    backend.Loop().Add(player);
    Application application(backend.GetPorts(), 2, backend.BaseDirectory());
    application.Start();
    application.Deliver([&] { backend.Run(); });
    inputs_ += player->Inputs();
    if (application.GetStatus() != Application::Status::kFailed) return true;
    std::printf("%s\n", application.Fault().box_text.c_str());
    return false;
  }

  GameOptions options_;
  std::minstd_rand random_;
  VirtualClock clock_;
  long games_ = 0;
  long inputs_ = 0;
};

double MegabytesInUse() { return static_cast<double>(mallinfo2().uordblks) / 1e6; }

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) {
    std::fprintf(stderr, "usage: wild_window CONTENT USER_FOLDER HOURS [SEED]\n");
    return 2;
  }
  GameOptions options;
  options.content = argv[1];
  options.user = argv[2];
  const int hours = std::atoi(argv[3]);
  WildHours wild(options, argc > 4 ? static_cast<unsigned>(std::atoi(argv[4])) : 1U);
  std::vector<double> in_use;
  for (int hour = 1; hour <= hours; ++hour) {
    if (!wild.Play(kHour * hour)) return 1;
    in_use.push_back(MegabytesInUse());
    std::printf("hour %d: %ld games, %ld inputs, %.2f MB in use\n", hour, wild.Games(),
                wild.Inputs(), in_use.back());
    std::fflush(stdout);
  }
  const bool flat = in_use.empty() || in_use.back() <= in_use.front() * kMostGrowth;
  std::printf("%s\n", flat ? "flat" : "it grows");
  return flat ? 0 : 1;
}
