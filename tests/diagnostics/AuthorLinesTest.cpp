#include "diagnostics/AuthorLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "diagnostics/ClickTrail.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using Lines = std::vector<std::string>;

// Lines with two blanks for each step to the right.
Lines Text(const std::vector<AuthorLine>& lines) {
  Lines text;
  for (const AuthorLine& line : lines) {
    text.push_back(std::string(static_cast<std::size_t>(2 * line.indent), ' ') + line.text);
  }
  return text;
}

ObjectUnder Door() {
  return {.path = "hall/door",
          .type = "button",
          .hit = true,
          .state = "open",
          .history = {"default"},
          .script = "click",
          .region = "knob",
          .area = {10, 20, 110, 220},
          .animation = "swing",
          .frames = {{"f1", {10, 20, 110, 220}}, {"f2", {10, 20, 60, 70}}},
          .regions = {{"knob", {20, 100, 30, 110}}, {"glass", {20, 30, 90, 60}}},
          .timer = 4,
          .interval = 100,
          .due = 40,
          .sound = "creak",
          .sounding = true};
}

TEST(AuthorLines, TellEverythingOfAnObject) {
  EXPECT_THAT(Text(LinesOf({25, 105}, {Door()})),
              ElementsAre("Under the pointer at 25,105", "hall/door (button), hit",
                          "  state \"open\", script \"click\"", "  comes back to \"default\"",
                          "  region \"knob\"", "  at 10,20, 100 x 200",
                          "  animation \"swing\", frames f1, f2",
                          "  timer 4: each 100 ms, next in 40", "  sound \"creak\", plays"));
}

TEST(AuthorLines, TellNoTimeBelowZeroOfATimerThatIsLate) {
  ObjectUnder late = Door();
  late.due = -2;
  EXPECT_THAT(Text(LinesOf({25, 105}, {late})),
              testing::Contains("  timer 4: each 100 ms, next in 0"));
}

TEST(AuthorLines, TellWhyAnObjectIsNotHit) {
  ObjectUnder beside = Door();
  beside.hit = false;
  beside.region = "";
  ObjectUnder hidden = beside;
  hidden.hidden = true;
  const Lines text = Text(LinesOf({0, 0}, {beside, hidden}));
  EXPECT_EQ(text[1], "hall/door (button), not hit: beside its pixels");
  EXPECT_EQ(text[4], "  outside of its regions knob, glass");
  EXPECT_THAT(text, testing::Contains("hall/door (button), hidden"));
}

TEST(AuthorLines, LeaveOutWhatIsNotThere) {
  ObjectUnder bare;
  bare.path = "hall";
  bare.type = "hall";
  bare.state = "default";
  EXPECT_THAT(Text(LinesOf({1, 2}, {bare})),
              ElementsAre("Under the pointer at 1,2", "hall (hall), not hit: beside its pixels",
                          "  state \"default\", no script", "  no regions", "  at 0,0, 0 x 0"));
  EXPECT_THAT(Text(LinesOf({1, 2}, std::vector<ObjectUnder>{})),
              ElementsAre("Under the pointer at 1,2", "nothing"));
}

TEST(AuthorLines, OfManyNamesTheFirstAreTold) {
  ObjectUnder many = Door();
  many.frames.assign(9, {"f", {}});
  EXPECT_EQ(Text(LinesOf({0, 0}, {many}))[6],
            "  animation \"swing\", frames f, f, f, f, f, f and 3 more");
}

TEST(AuthorLines, ATrailIsToldStepByStep) {
  ClickTrail trail;
  EXPECT_THAT(Text(LinesOf(trail)), ElementsAre("Click: its trail will stand here"));
  trail.Trace({TraceKind::kClick, "hand", "", "12,34"});
  trail.Trace({TraceKind::kHit, "door", "", "knob", false, 2});
  trail.Trace({TraceKind::kScript, "door", "click", "knobhandmouseclick", false, 2});
  trail.Trace({TraceKind::kBranch, "door", "s.txt:3", "if action = *click", false, 2});
  trail.Trace({TraceKind::kStatement, "door", "", "mtp cs_hall", false, 3});
  trail.Trace({TraceKind::kMessage, "room", "door", "cs_hall", false, 4});
  trail.Trace({TraceKind::kState, "door", "default", "open", false, 4});
  trail.Trace({TraceKind::kSound, "door", "", "creak", false, 4});
  trail.Trace({TraceKind::kTimer, "door", "", "start swing", false, 4});
  trail.Trace({TraceKind::kScreen, "hall", "", "enter", false, 4});
  trail.Trace({TraceKind::kClick, "hand", "skipped", ""});
  EXPECT_THAT(
      Text(LinesOf(trail)),
      ElementsAre("Click at 12,34 with \"hand\"", "door is hit, region \"knob\"",
                  "  door: script \"click\" gets \"knobhandmouseclick\"",
                  "  if action = *click  (s.txt:3)", "  door does: mtp cs_hall",
                  "    to room from door: cs_hall", "    door: state \"default\" becomes \"open\"",
                  "    door: sound \"creak\"", "    door: timer, start swing",
                  "    screen hall: enter",
                  "the pointer had changed: the screen did not get this click"));
}

TEST(AuthorLines, AClickThatDoesNothingSaysSo) {
  ClickTrail trail;
  trail.Trace({TraceKind::kClick, "hand", "", "12,34"});
  trail.Trace({TraceKind::kClick, "hand", "", ""});
  EXPECT_THAT(Text(LinesOf(trail)),
              ElementsAre("Click at 12,34 with \"hand\"", "nothing is hit, and no script acts"));
}

TEST(AuthorLines, OutlinesShowNoFrameOnItsObjectAndTheRegionHitAsSuch) {
  using Kind = AuthorOutline::Kind;
  EXPECT_THAT(OutlinesOf({Door()}), ElementsAre(AuthorOutline{Kind::kObject, {10, 20, 110, 220}},
                                                AuthorOutline{Kind::kFrame, {10, 20, 60, 70}},
                                                AuthorOutline{Kind::kHitRegion, {20, 100, 30, 110}},
                                                AuthorOutline{Kind::kRegion, {20, 30, 90, 60}}));
  ObjectUnder hidden = Door();
  hidden.hidden = true;
  EXPECT_TRUE(OutlinesOf({hidden}).empty());
}

}  // namespace
}  // namespace quendle
