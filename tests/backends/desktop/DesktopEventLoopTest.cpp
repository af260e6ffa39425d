#include "backends/desktop/DesktopEventLoop.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "backends/desktop/DesktopClock.h"
#include "backends/desktop/StepClock.h"
#include "base/ProcessEnds.h"

namespace quendle {
namespace {

TEST(DesktopEventLoop, TimersFireUntilTheConditionHolds) {
  DesktopClock clock;
  DesktopEventLoop loop(clock);
  int ticks = 0;
  loop.Timers().SetTimer(Milliseconds(10), "tick", [&](int) { ++ticks; });
  loop.Run([&] { return ticks == 3; });
  EXPECT_EQ(ticks, 3);
  EXPECT_GE(clock.Monotonic(), Milliseconds(29));
}

TEST(DesktopEventLoop, TicksGoOnInALoopWithinATick) {
  DesktopClock clock;
  DesktopEventLoop loop(clock);
  int outer = 0;
  int inner = 0;
  int id = 0;
  id = loop.Timers().SetTimer(Milliseconds(10), "outer", [&](int) {
    ++outer;
    loop.Timers().KillTimer(id);
    loop.Run([&] { return inner >= 2; });
  });
  loop.Timers().SetTimer(Milliseconds(10), "inner", [&](int) { ++inner; });
  loop.Run([&] { return outer == 1 && inner >= 2; });
  EXPECT_EQ(outer, 1);
  EXPECT_GE(inner, 2);
}

TEST(DesktopEventLoop, TheEndOfTheProcessLeavesThroughRun) {
  DesktopClock clock;
  DesktopEventLoop loop(clock);
  loop.Timers().SetTimer(Milliseconds(10), "end", [](int) { throw ProcessEnds{true}; });
  EXPECT_THROW(loop.Run([] { return false; }), ProcessEnds);
}

// A real clock that a test moves; it moves a little whenever it is asked, as real ones do.
class MovedClock : public Clock {
 public:
  double TimeOfDay() override { return 3600.0625; }
  Milliseconds Monotonic() override { return now_ += Milliseconds(1); }
  void Pass(int milliseconds) { now_ += Milliseconds(milliseconds); }

 private:
  Milliseconds now_{1000};
};

TEST(StepClock, ItStandsStillUntilItIsMoved) {
  MovedClock real;
  StepClock clock(real);
  real.Pass(100);
  EXPECT_EQ(clock.Monotonic(), Milliseconds(0));
  EXPECT_GE(clock.Reachable(), Milliseconds(100));
  EXPECT_EQ(clock.Monotonic(), Milliseconds(0));
  clock.AdvanceTo(Milliseconds(70));
  EXPECT_EQ(clock.Monotonic(), Milliseconds(70));
  EXPECT_DOUBLE_EQ(clock.TimeOfDay(), 3600.132);
}

TEST(StepClock, AMachineThatFallsFarBehindSlowsItDown) {
  MovedClock real;
  StepClock clock(real);
  real.Pass(60000);
  EXPECT_LE(clock.Reachable(), Milliseconds(260));
  clock.AdvanceTo(clock.Reachable());
  real.Pass(100);
  EXPECT_LE(clock.Reachable(), Milliseconds(380));
  EXPECT_GE(clock.Reachable(), Milliseconds(350));
}

TEST(DesktopEventLoop, OnAClockThatStepsEachTickComesExactlyWhenItIsDue) {
  DesktopClock real;
  StepClock clock(real);
  DesktopEventLoop loop(clock);
  std::vector<long> moments;
  loop.Timers().SetTimer(Milliseconds(10), "quick", [&](int) {
    moments.push_back(clock.Monotonic().count());
    // Slower than its interval: it still loses no tick.
    SDL_Delay(12);
  });
  loop.Run([&] { return moments.size() == 8; });
  EXPECT_EQ(moments, (std::vector<long>{10, 20, 30, 40, 50, 60, 70, 80}));
}

TEST(DesktopEventLoop, OnAClockThatStepsNoInputComesBetweenTicksThatAreDueTogether) {
  DesktopClock real;
  StepClock clock(real);
  DesktopEventLoop loop(clock);
  std::string order;
  loop.Timers().SetTimer(Milliseconds(10), "first", [&](int) { order += "1"; });
  loop.Timers().SetTimer(Milliseconds(10), "second", [&](int) { order += "2"; });
  loop.Run([&] {
    order += "?";  // asked before input is looked for
    return order.find('2') != std::string::npos;
  });
  EXPECT_NE(order.find("12"), std::string::npos);
}

TEST(DesktopClock, TheTimeOfDayLiesWithinOneDay) {
  DesktopClock clock;
  EXPECT_GE(clock.TimeOfDay(), 0);
  EXPECT_LT(clock.TimeOfDay(), 86400);
}

TEST(DesktopClock, TheMonotonicClockNeverGoesBack) {
  DesktopClock clock;
  Milliseconds before = clock.Monotonic();
  for (int i = 0; i < 1000; ++i) {
    Milliseconds now = clock.Monotonic();
    ASSERT_GE(now, before);
    before = now;
  }
}

}  // namespace
}  // namespace quendle
