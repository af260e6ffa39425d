#include "backends/desktop/DebugWindow.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include "backends/desktop/DesktopClock.h"
#include "backends/desktop/DesktopEventLoop.h"
#include "backends/desktop/FontFinder.h"
#include "backends/desktop/SdlFonts.h"
#include "backends/desktop/SdlLibrary.h"
#include "platform/TextSource.h"

namespace quendle {
namespace {

class Lines : public TextSource {
 public:
  const std::string& Caption() const override { return caption; }
  const std::string& Text() const override { return text; }
  std::uint64_t Changes() const override { return changes; }
  void PutOnTop(const std::string& line) {
    text.insert(0, line + "\r\n");
    ++changes;
  }
  std::string caption = "A caption";
  std::string text;
  std::uint64_t changes = 0;
};

// Another window that a box stands over.
class Other : public SdlEventTarget {
 public:
  std::uint32_t WindowId() const override { return 4711; }
  void HandleInput(const SDL_Event&) override {}
  void HandleUpkeep(const SDL_Event&) override {}
  void Settle() override {}
  void HandleQuit() override {}
};

struct DebugWindowBench : testing::Test {
  DebugWindowBench() { loop.Add(window); }

  void Pump() {
    bool done = false;
    int timer = loop.Timers().SetTimer(Milliseconds(10), "done", [&](int) { done = true; });
    loop.Run([&] { return done; });
    loop.Timers().KillTimer(timer);
    window->Settle();
  }
  void Fill(int lines) {
    for (int i = 0; i < lines; ++i) text.PutOnTop("line " + std::to_string(i));
    Pump();
  }
  void Key(SDL_Keycode code) {
    SDL_Event event{};
    event.type = SDL_KEYDOWN;
    event.key.windowID = window->WindowId();
    event.key.keysym.sym = code;
    SDL_PushEvent(&event);
    Pump();
  }
  void Wheel(int up) {
    SDL_Event event{};
    event.type = SDL_MOUSEWHEEL;
    event.wheel.windowID = window->WindowId();
    event.wheel.y = up;
    SDL_PushEvent(&event);
    Pump();
  }
  std::string Top() const {
    return window->View().Rows().at(static_cast<std::size_t>(window->View().FirstRow()));
  }

  SdlLibrary library;
  DesktopClock clock;
  DesktopEventLoop loop{clock};
  SdlFonts fonts{FontFinder(FontFinder::SystemFolders())};
  TextPainter painter{fonts};
  Lines text;
  std::shared_ptr<DebugWindow> window = std::make_shared<DebugWindow>(painter, text);
};

using DebugWindowTest = DebugWindowBench;

TEST_F(DebugWindowTest, IsAWindowWithTheCaptionOfTheText) {
  ASSERT_TRUE(window->IsOpen());
  EXPECT_STREQ(SDL_GetWindowTitle(SDL_GetWindowFromID(window->WindowId())), "A caption");
}

TEST_F(DebugWindowTest, ShowsTheTextAsItChanges) {
  Fill(2);
  EXPECT_EQ(window->View().Rows(), (std::vector<std::string>{"line 1", "line 0"}));
  text.PutOnTop("line 2");
  Pump();
  EXPECT_EQ(Top(), "line 2");
}

TEST_F(DebugWindowTest, WheelAndKeysScrollWithinTheText) {
  Fill(200);
  EXPECT_EQ(Top(), "line 199");
  Wheel(-1);
  EXPECT_EQ(Top(), "line 196");
  Key(SDLK_DOWN);
  EXPECT_EQ(Top(), "line 195");
  Key(SDLK_UP);
  Wheel(2);
  EXPECT_EQ(Top(), "line 199");
  Key(SDLK_END);
  EXPECT_EQ(window->View().FirstRow(), 200 - window->View().RowsInView());
  Key(SDLK_PAGEDOWN);
  EXPECT_EQ(window->View().FirstRow(), 200 - window->View().RowsInView());
  Key(SDLK_PAGEUP);
  EXPECT_EQ(window->View().FirstRow(), 201 - 2 * window->View().RowsInView());
  Key(SDLK_HOME);
  EXPECT_EQ(Top(), "line 199");
}

TEST_F(DebugWindowTest, ScrollsAlsoWhileABoxStandsOverTheGame) {
  Fill(200);
  Other other;
  const DesktopEventLoop::Modal modal(loop, other);
  Wheel(-1);
  EXPECT_EQ(Top(), "line 196");
}

TEST_F(DebugWindowTest, ClosingItEndsNothing) {
  SDL_Event event{};
  event.type = SDL_WINDOWEVENT;
  event.window.windowID = window->WindowId();
  event.window.event = SDL_WINDOWEVENT_CLOSE;
  SDL_PushEvent(&event);
  Pump();
  EXPECT_FALSE(window->IsOpen());
  text.PutOnTop("more");
  Pump();
  EXPECT_EQ(window->WindowId(), 0u);
}

}  // namespace
}  // namespace quendle
