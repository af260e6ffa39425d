#include <algorithm>
#include <memory>

#include "base/TimerQueue.h"

#include <gtest/gtest.h>

#include "base/FatalError.h"

namespace quendle {
namespace {

using namespace std::chrono_literals;

class ManualClock : public Clock {
 public:
  double TimeOfDay() override { return 0; }
  Milliseconds Monotonic() override { return now; }
  Milliseconds now{0};
};

using Fired = std::vector<std::string>;

class TimerQueueTest : public testing::Test {
 protected:
  static void Nothing(int) {}
  int Start(Milliseconds interval, const std::string& name) {
    return queue_.SetTimer(interval, name, Nothing);
  }
  // Everything that is due by then, one tick after the other.
  Fired RunUntil(Milliseconds until) {
    Fired fired;
    Milliseconds due;
    while (queue_.NextDue(due) && due <= until) {
      clock_.now = std::max(clock_.now, due);
      fired.push_back(FireOne());
    }
    clock_.now = until;
    return fired;
  }
  std::string FireOne() {
    std::string name;
    return queue_.FireNext(clock_.now, name) ? name : "none";
  }
  std::vector<int> RunningIds() const {
    std::vector<int> ids;
    for (const TimerInfo& timer : queue_.Running()) ids.push_back(timer.id);
    return ids;
  }

  ManualClock clock_;
  TimerQueue queue_{clock_};
};

TEST_F(TimerQueueTest, ATimerFiresEachTimeItsIntervalIsOver) {
  Start(50ms, "a");
  EXPECT_EQ(RunUntil(49ms), Fired{});
  EXPECT_EQ(RunUntil(50ms), (Fired{"a"}));
  EXPECT_EQ(RunUntil(200ms), (Fired{"a", "a", "a"}));
}

TEST_F(TimerQueueTest, TheFirstIntervalBeginsAtTheStartOfTheTimer) {
  clock_.now = 1000ms;
  Start(50ms, "a");
  EXPECT_EQ(queue_.Running()[0].due, 1050ms);
}

TEST_F(TimerQueueTest, AnIntervalBelowTenRunsAtTen) {
  for (Milliseconds interval : {1ms, 0ms, -5ms, 9ms}) Start(interval, "short");
  Start(11ms, "longer");
  for (const TimerInfo& timer : queue_.Running()) {
    EXPECT_EQ(timer.interval, timer.callback == "short" ? 10ms : 11ms);
  }
  EXPECT_EQ(RunUntil(9ms), Fired{});
  EXPECT_EQ(RunUntil(10ms).size(), 4U);
}

TEST_F(TimerQueueTest, TicksDoNotQueueForATimerThatFellBehind) {
  Start(10ms, "a");
  clock_.now = 1000ms;
  EXPECT_EQ(FireOne(), "a");
  EXPECT_EQ(FireOne(), "none");
  EXPECT_EQ(queue_.Running()[0].due, 1010ms);
}

TEST_F(TimerQueueTest, ATimerThatIsALittleLateKeepsItsBeat) {
  Start(100ms, "a");
  clock_.now = 130ms;
  EXPECT_EQ(FireOne(), "a");
  EXPECT_EQ(queue_.Running()[0].due, 200ms);
}

TEST_F(TimerQueueTest, ATickThatIsDueRightNowAgainCountsAsFallenBehind) {
  Start(10ms, "a");
  clock_.now = 20ms;
  EXPECT_EQ(FireOne(), "a");
  EXPECT_EQ(FireOne(), "none");
  EXPECT_EQ(queue_.Running()[0].due, 30ms);
}

TEST_F(TimerQueueTest, TimersDueTogetherFireInTheOrderOfTheirStart) {
  Start(100ms, "first");
  Start(50ms, "second");
  Start(25ms, "third");
  RunUntil(99ms);
  EXPECT_EQ(RunUntil(100ms), (Fired{"first", "second", "third"}));
}

TEST_F(TimerQueueTest, AReusedIdDoesNotGoBeforeAnOlderTimer) {
  int freed = Start(50ms, "freed");
  Start(50ms, "older");
  queue_.KillTimer(freed);
  EXPECT_EQ(Start(50ms, "younger"), freed);
  EXPECT_EQ(RunUntil(50ms), (Fired{"older", "younger"}));
  EXPECT_EQ(queue_.Running()[0].callback, "older");
  EXPECT_EQ(queue_.Running()[1].callback, "younger");
}

TEST_F(TimerQueueTest, EarlierTicksFireFirst) {
  Start(30ms, "slow");
  Start(20ms, "quick");
  EXPECT_EQ(RunUntil(60ms), (Fired{"quick", "slow", "quick", "slow", "quick"}));
}

TEST_F(TimerQueueTest, IdsAreTheSmallestFreeNumberFromOne) {
  EXPECT_EQ(Start(50ms, "a"), 1);
  EXPECT_EQ(Start(50ms, "b"), 2);
  EXPECT_EQ(Start(50ms, "c"), 3);
  queue_.KillTimer(2);
  queue_.KillTimer(1);
  EXPECT_EQ(Start(50ms, "d"), 1);
  EXPECT_EQ(Start(50ms, "e"), 2);
  EXPECT_EQ(Start(50ms, "f"), 4);
}

TEST_F(TimerQueueTest, ADayOfTimersNeverReachesALargeId) {
  for (int i = 0; i < 100'000; ++i) {
    int id = Start(50ms, "a");
    EXPECT_EQ(id, 1);
    queue_.KillTimer(id);
  }
}

TEST_F(TimerQueueTest, TheLargestIdIs32767AndOneTimerMoreIsFatal) {
  int last = 0;
  for (int i = 0; i < 32767; ++i) last = Start(50ms, "");
  EXPECT_EQ(last, 32767);
  EXPECT_THROW(Start(50ms, "one more"), FatalError);
  queue_.KillTimer(17);
  EXPECT_EQ(Start(50ms, "a"), 17);
}

TEST_F(TimerQueueTest, KillingAnUnknownIdIsIgnored) {
  Start(50ms, "a");
  queue_.KillTimer(0);
  queue_.KillTimer(7);
  queue_.KillTimer(-1);
  EXPECT_EQ(RunningIds(), (std::vector<int>{1}));
}

TEST_F(TimerQueueTest, TheCallbackGetsTheIdOfItsTimer) {
  Start(50ms, "other");
  int seen = 0;
  int id = queue_.SetTimer(20ms, "a", [&](int given) { seen = given; });
  RunUntil(20ms);
  EXPECT_EQ(seen, id);
}

TEST_F(TimerQueueTest, ATimerMayBeKilledInItsOwnCallback) {
  // What the callback holds must outlive the kill that it makes itself.
  auto text = std::make_shared<std::string>("still here");
  std::string seen;
  queue_.SetTimer(10ms, "once", [this, text, &seen](int id) {
    queue_.KillTimer(id);
    seen = *text;
  });
  EXPECT_EQ(RunUntil(100ms), (Fired{"once"}));
  EXPECT_EQ(seen, "still here");
  EXPECT_TRUE(queue_.Running().empty());
}

TEST_F(TimerQueueTest, ADueTickOfATimerKilledInTheSameRoundNeverFires) {
  int victim = 0;
  queue_.SetTimer(10ms, "killer", [&](int) { queue_.KillTimer(victim); });
  victim = Start(10ms, "victim");
  EXPECT_EQ(RunUntil(10ms), (Fired{"killer"}));
}

TEST_F(TimerQueueTest, AnIdThatIsReusedAtOnceDoesNotInheritTheDueTick) {
  int victim = 0;
  int heir = 0;
  queue_.SetTimer(10ms, "killer", [&](int id) {
    queue_.KillTimer(victim);
    heir = Start(10ms, "heir");
    queue_.KillTimer(id);
  });
  victim = Start(10ms, "victim");
  EXPECT_EQ(RunUntil(19ms), (Fired{"killer"}));
  EXPECT_EQ(heir, victim);
  EXPECT_EQ(RunUntil(20ms), (Fired{"heir"}));
}

TEST_F(TimerQueueTest, ATimerThatIsReplacedInItsOwnCallbackKeepsItsIdAndWaitsAFullInterval) {
  int ticks = 0;
  std::function<void(int)> restart = [&](int id) {
    ++ticks;
    queue_.KillTimer(id);
    EXPECT_EQ(queue_.SetTimer(10ms, "again", restart), id);
  };
  queue_.SetTimer(10ms, "again", restart);
  RunUntil(9ms);
  EXPECT_EQ(ticks, 0);
  RunUntil(35ms);
  EXPECT_EQ(ticks, 3);
}

TEST_F(TimerQueueTest, ATimerStartedInACallbackTakesPartInTheSameRun) {
  queue_.SetTimer(20ms, "starter", [&](int id) {
    queue_.KillTimer(id);
    Start(10ms, "started");
  });
  EXPECT_EQ(RunUntil(40ms), (Fired{"starter", "started", "started"}));
}

TEST_F(TimerQueueTest, TimersGoOnWhileACallbackWaits) {
  // A box in a callback runs the message loop: the other timers and this one fire inside it.
  Fired inside;
  int depth = 0;
  queue_.SetTimer(10ms, "box", [&](int) {
    if (++depth > 1) return;
    inside = RunUntil(30ms);
  });
  Start(10ms, "other");
  EXPECT_EQ(RunUntil(10ms), (Fired{"box"}));
  EXPECT_EQ(inside, (Fired{"other", "box", "other", "box", "other"}));
}

TEST_F(TimerQueueTest, AFaultInACallbackLeavesTheTimerInOrder) {
  queue_.SetTimer(10ms, "fault", [](int) { throw FatalError("fault"); });
  clock_.now = 10ms;
  std::string name;
  EXPECT_THROW(queue_.FireNext(clock_.now, name), FatalError);
  EXPECT_EQ(name, "fault");
  EXPECT_EQ(queue_.Running()[0].due, 20ms);
}

TEST_F(TimerQueueTest, WithoutTimersNothingIsDue) {
  Milliseconds due{77};
  EXPECT_FALSE(queue_.NextDue(due));
  EXPECT_EQ(due, 77ms);
  EXPECT_EQ(FireOne(), "none");
}

TEST_F(TimerQueueTest, RunningTellsTheTimersInTheOrderOfTheirStart) {
  clock_.now = 5ms;
  Start(100ms, "OnObjectTimer");
  Start(20ms, "OnDrawTimer");
  std::vector<TimerInfo> running = queue_.Running();
  ASSERT_EQ(running.size(), 2U);
  EXPECT_EQ(running[0].callback, "OnObjectTimer");
  EXPECT_EQ(running[0].interval, 100ms);
  EXPECT_EQ(running[0].due, 105ms);
  EXPECT_EQ(running[1].id, 2);
}

}  // namespace
}  // namespace quendle
