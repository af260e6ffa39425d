// Both verification walks, step by step.

#include "logic/ScreenWalk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/ProcessEnds.h"
#include "logic/LogicBench.h"
#include "support/Fatal.h"

namespace quendle {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kClick = "toscreen_currentscreen_totype_patient_useraction_";

struct ScreenWalkTest : testing::Test, LogicBench {
  struct Line {
    std::string text;
    int level;
    std::string category;
    bool operator==(const Line&) const = default;
  };
  struct Log : EventSink {
    void LogEvent(std::string_view message, int level, std::string_view category) override {
      if (at_line) at_line();
      lines.push_back({std::string(message), level, std::string(category)});
    }
    std::vector<Line> lines;
    std::function<void()> at_line;
  };

  ScreenWalkTest() { Start(); }

  // A walk over two screens of the small clinic with two words.
  void Begin(std::vector<std::string> words = {"hand", "bandaid"}) {
    walk->screens = {"floor1hall1", "dogroom"};
    walk->words = std::move(words);
    walk->timer = backend.timers.SetTimer(Milliseconds(50), "OnWalkTimer", [](int) {});
    logic->SetScreenWalk(walk);
    objects.log = &log;
    host.calls.clear();
    ForgetTrace();
  }
  ~ScreenWalkTest() override { objects.log = nullptr; }

  void Steps(int count) {
    for (int i = 0; i < count; ++i) logic->EnumerateScreenVerification();
  }
  // What the walk itself logged.
  std::vector<Line> Told() const {
    std::vector<Line> told;
    for (const Line& line : log.lines) {
      if (line.text.find("Warning") == std::string::npos) told.push_back(line);
    }
    return told;
  }
  bool TimerRuns() const {
    for (const TimerInfo& timer : backend.timers.Running()) {
      if (timer.callback == "OnWalkTimer") return true;
    }
    return false;
  }

  std::shared_ptr<ScreenWalk> walk = std::make_shared<ScreenWalk>();
  Log log;
};

TEST_F(ScreenWalkTest, AStepWithoutAWalkIsFatal) {
  EXPECT_THAT(FatalOf([&] { logic->EnumerateScreenVerification(); }),
              testing::HasSubstr("no walk"));
  EXPECT_THAT(FatalOf([&] { logic->EnumerateScreen2Verification(); }),
              testing::HasSubstr("no walk"));
}

TEST_F(ScreenWalkTest, PositionsAndRoundsBeginAtOne) {
  EXPECT_EQ(walk->screen, 1u);
  EXPECT_EQ(walk->word, 1u);
  EXPECT_EQ(walk->round, 1);
}

TEST_F(ScreenWalkTest, AStepOfTheLongWalkClicksThePatientWithOneWord) {
  Begin();
  Steps(1);
  EXPECT_THAT(Told(), ElementsAre(Line{std::string("Current Message: ") + kClick + "handmouseclick",
                                       10, "General"}));
  EXPECT_TRUE(Sent(std::string("GameLogic: ") + kClick + "handmouseclick"));
  EXPECT_EQ(walk->word, 2u);
  EXPECT_EQ(walk->round, 1);
  EXPECT_THAT(host.calls, IsEmpty());
  Steps(1);
  EXPECT_TRUE(Sent(std::string("GameLogic: ") + kClick + "bandaidmouseclick"));
  EXPECT_EQ(walk->word, 3u);
}

TEST_F(ScreenWalkTest, PastTheLastWordAStepOnlyBeginsTheNextRound) {
  Begin();
  Steps(2);
  ForgetTrace();
  log.lines.clear();
  Steps(1);
  EXPECT_EQ(walk->word, 1u);
  EXPECT_EQ(walk->round, 2);
  EXPECT_EQ(walk->screen, 1u);
  EXPECT_THAT(log.lines, IsEmpty());
  EXPECT_THAT(trace.messages, IsEmpty());
}

TEST_F(ScreenWalkTest, TheScreenChangesAfterFiveRoundsAndNotBefore) {
  Begin();
  Steps(5 * 3);
  EXPECT_EQ(walk->round, 6);
  EXPECT_EQ(Current(), "introscreen");
  EXPECT_EQ(walk->screen, 1u);
  log.lines.clear();
  Steps(1);
  EXPECT_EQ(Current(), "floor1hall1");
  EXPECT_EQ(walk->screen, 2u);
  EXPECT_EQ(walk->round, 1);
  EXPECT_EQ(walk->word, 1u);
  EXPECT_THAT(Told(), ElementsAre(Line{"Current Screen: floor1hall1", 20, "General"}));
  EXPECT_THAT(host.calls, ElementsAre("Beep"));
}

TEST_F(ScreenWalkTest, TheLongWalkEndsTheGameBehindItsLastScreen) {
  Begin();
  Steps(2 * (5 * 3 + 1));
  EXPECT_EQ(Current(), "dogroom");
  EXPECT_EQ(walk->screen, 3u);
  EXPECT_TRUE(TimerRuns());
  log.lines.clear();
  EXPECT_THROW(Steps(1), ProcessEnds);
  EXPECT_TRUE(Sent("GameLogic: exitgame"));
  EXPECT_FALSE(TimerRuns());
  EXPECT_EQ(walk->timer, 0);
  EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(ScreenWalkTest, AWalkOverNoScreenEndsAtOnce) {
  Begin();
  walk->screens.clear();
  EXPECT_THROW(Steps(1), ProcessEnds);
  EXPECT_FALSE(TimerRuns());
}

TEST_F(ScreenWalkTest, AWalkWithoutWordsCountsNoRoundsBeyondThoseThatMatter) {
  Begin({});
  Steps(100);
  EXPECT_EQ(walk->round, 6);
  EXPECT_EQ(walk->screen, 1u);
  EXPECT_EQ(Current(), "introscreen");
}

TEST_F(ScreenWalkTest, TheShortWalkOnlyVisitsTheScreens) {
  Begin();
  logic->EnumerateScreen2Verification();
  EXPECT_EQ(Current(), "floor1hall1");
  EXPECT_EQ(walk->screen, 2u);
  EXPECT_THAT(host.calls, ElementsAre("Beep"));
  logic->EnumerateScreen2Verification();
  EXPECT_EQ(Current(), "dogroom");
  EXPECT_THAT(host.calls, ElementsAre("Beep", "Beep"));
  EXPECT_TRUE(TimerRuns());
  EXPECT_THROW(logic->EnumerateScreen2Verification(), ProcessEnds);
  EXPECT_FALSE(TimerRuns());
  EXPECT_EQ(walk->timer, 0);
  EXPECT_THAT(host.calls, ElementsAre("Beep", "Beep"));
  EXPECT_THAT(Told(), ElementsAre(Line{"Current Screen: floor1hall1", 20, "General"},
                                  Line{"Current Screen: dogroom", 20, "General"},
                                  Line{"Exiting Game", 20, "General"}));
  EXPECT_TRUE(Sent("GameLogic: exitgame"));
  EXPECT_EQ(walk->round, 1);
}

TEST_F(ScreenWalkTest, TheShortWalkKillsItsTimerBeforeItSaysThatItEnds) {
  Begin();
  walk->screens.clear();
  bool ran = true;
  log.at_line = [&] { ran = TimerRuns(); };
  EXPECT_THROW(logic->EnumerateScreen2Verification(), ProcessEnds);
  EXPECT_FALSE(ran);
}

TEST_F(ScreenWalkTest, AStepDoesNotBeginInsideAStep) {
  Begin();
  walk->in_step = true;
  Steps(3);
  EXPECT_EQ(walk->word, 1u);
  EXPECT_THAT(log.lines, IsEmpty());
  walk->in_step = false;
  Steps(1);
  EXPECT_EQ(walk->word, 2u);
}

TEST_F(ScreenWalkTest, TheScreensOfAWalkAreThoseOfTheTableWithoutToolsAndCursors) {
  std::vector<std::string> screens;
  logic->Keeper()->EnumerateScreens(screens);
  EXPECT_THAT(screens, Contains("introscreen"));
  EXPECT_THAT(screens, testing::Not(Contains("tools")));
  EXPECT_THAT(screens, testing::Not(Contains("cursors")));
}

TEST_F(ScreenWalkTest, AReleasedLayerLetsItsWalkGo) {
  Begin();
  logic->Release();
  EXPECT_EQ(walk.use_count(), 1);
}

}  // namespace
}  // namespace quendle
