// The game window: pointer, keys, focus and the hook.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/GameBench.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Status = Application::Status;

struct WindowBench : testing::Test, GameBench {
  ObjectRef Pointer() { return World().FindGlobalObject("handcursor"); }
};

using WindowEvents = WindowBench;

TEST_F(WindowEvents, PositionsAreRoundedHalfToEven) {
  Play();
  struct Case {
    double given;
    int rounded;
  };
  for (const Case& c : {Case{2.5, 2}, Case{3.5, 4}, Case{2.51, 3}, Case{-0.5, 0}, Case{-1.5, -2}}) {
    Do([&] { backend.window.Move(c.given, c.given); });
    EXPECT_EQ(Pointer()->xpos(), c.rounded - 16) << c.given;
    EXPECT_EQ(Pointer()->ypos(), c.rounded - 8) << c.given;
  }
}

TEST_F(WindowEvents, APressOfAnyButtonIsAClick) {
  for (MouseButton button : {MouseButton::kLeft, MouseButton::kRight, MouseButton::kMiddle}) {
    GameBench bench;
    bench.Play();
    bench.Do([&] { bench.backend.window.Click(120, 120, button); });
    EXPECT_EQ(bench.Current(), "floor1hall1");
  }
}

TEST_F(WindowEvents, OnlyEscapeAsksToExit) {
  Play();
  for (int code : {13, 32, 65, 26, 28}) Do([&] { backend.window.Key(code); });
  EXPECT_FALSE(Logic()->DialogActive());
  Do([&] { backend.window.Key(27); });
  EXPECT_TRUE(Logic()->DialogActive());
}

TEST_F(WindowEvents, EventsAfterTheEndAreDropped) {
  Play();
  EXPECT_EQ(Close(), Status::kEnded);
  EXPECT_EQ(Click(120, 120), Status::kEnded);
  bool ran = false;
  Do([&] { ran = true; });
  EXPECT_FALSE(ran);
}

TEST_F(WindowEvents, WithoutTheFocusNothingMovesAndTheMusicWaits) {
  Play();
  graphs.Last().position = 4;
  Tick(100);
  EXPECT_EQ(Logic()->FrameCounter(), 2);
  Focus(false);
  EXPECT_FALSE(World().GameActive);
  EXPECT_EQ(graphs.Last().calls.back(), "Pause");
  Tick(1000);
  EXPECT_EQ(Logic()->FrameCounter(), 2);
  Focus(true);
  EXPECT_TRUE(World().GameActive);
  EXPECT_EQ(graphs.Last().calls.back(), "Run");
  EXPECT_EQ(graphs.Last().position, 4);
  Tick(100);
  EXPECT_EQ(Logic()->FrameCounter(), 4);
}

TEST_F(WindowEvents, AnimationsWaitForTheFocusToo) {
  PutObject(files, {.type = "button",
                    .name = "start",
                    .width = 10,
                    .height = 10,
                    .states = {{.name = "default", .animation = "blink"}},
                    .animations = {{.name = "blink", .interval = 100, .loop = "loop"}}});
  Play();
  ASSERT_EQ(World().TimedObjects.Count(), 1u);
  Focus(false);
  const long gated = World().gated_ticks;
  Tick(100);
  EXPECT_EQ(World().gated_ticks - gated, 3);  // two of the drawing, one of the animation
}

TEST_F(WindowEvents, EveryMessageIsPassedOnToTheWindowsOwnProcedure) {
  std::vector<std::string> seen;
  backend.window.ReplaceWindowProc(
      [&](int, unsigned message, std::intptr_t w, std::intptr_t l) -> std::intptr_t {
        seen.push_back(std::to_string(message) + " " + std::to_string(w) + " " + std::to_string(l));
        return 0;
      });
  Play();
  Do([&] { backend.window.SendMessageA(5, 6, 7); });
  Focus(false);
  EXPECT_THAT(seen, ElementsAre("5 6 7", "28 0 0"));
}

TEST_F(WindowEvents, OtherMessagesDoNotTouchTheFocus) {
  Play();
  Do([&] { backend.window.SendMessageA(27, 0, 0); });
  EXPECT_TRUE(World().GameActive);
}

TEST_F(WindowEvents, ARefusedHookIsToldAndTheGameGoesOnWithoutPauses) {
  faults.Plan("ReplaceWindowProc", 0, 1, false);
  ASSERT_EQ(Play(), Status::kRunning);
  EXPECT_THAT(Boxes(), ElementsAre("Could not handle Redrawing Error Recovery"));
  Focus(false);
  EXPECT_TRUE(World().GameActive);
  Click(120, 120);
  EXPECT_EQ(Current(), "floor1hall1");
  EXPECT_EQ(Close(), Status::kEnded);
}

TEST_F(WindowEvents, BuyingOpensThePageAndPausesUntilTheFocusReturns) {
  Play();
  graphs.Last().position = 6;
  Send("buynow");
  EXPECT_THAT(backend.system.TakeOpened(), ElementsAre(application.GetSettings().WebAddress));
  EXPECT_FALSE(World().GameActive);
  EXPECT_EQ(graphs.Last().calls.back(), "Pause");
  Focus(true);
  EXPECT_TRUE(World().GameActive);
  EXPECT_EQ(graphs.Last().position, 6);
}

}  // namespace
}  // namespace quendle
