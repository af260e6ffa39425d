#include "backends/desktop/DesktopEventLoop.h"

#include <gtest/gtest.h>

#include "backends/desktop/DesktopClock.h"
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
