#include "diagnostics/ClickTrail.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "logic/LogicBench.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

// "KIND to<from: text" of each step; kinds as one letter.
Lines Told(const ClickTrail& trail) {
  Lines lines;
  for (const TrailStep& step : trail.Steps()) {
    const char letters[] = {'M', 'S', 'D', 'T', 'N', 'I', 'V', 'L', 'C', 'H', 'B'};
    lines.push_back(std::string(1, letters[static_cast<int>(step.kind)]) + " " + step.to + "<" +
                    step.from + ": " + step.text);
  }
  return lines;
}

struct TrailBench : testing::Test, LogicBench {
  TrailBench() { watch.tracer = &trail; }
  ClickTrail trail;
};

using ClickTrailTest = TrailBench;

TEST_F(ClickTrailTest, TellsWhatWasHitWhichBranchMatchedAndWhatWasSent) {
  Start();
  Click(120, 120);
  EXPECT_EQ(trail.Place(), "120,120");
  EXPECT_EQ(trail.Pointer(), "hand");
  ASSERT_GE(trail.Steps().size(), 6u);
  const Lines told = Told(trail);
  EXPECT_THAT(Lines(told.begin(), told.begin() + 6),
              ElementsAre("H start<: ", "S start<click: handmouseclick",
                          "B start<Info\\start\\script_click.txt:2: if action = *handmouseclick",
                          "D start<: mtp cs_floor1hall1", "M introscreen<start: cs_floor1hall1",
                          "M GameLogic<introscreen: cs_floor1hall1"));
}

TEST_F(ClickTrailTest, AClickBesideEverythingLeavesNothing) {
  Start();
  Click(700, 20);
  EXPECT_FALSE(trail.Empty());
  EXPECT_THAT(Told(trail), IsEmpty()) << "\"...not\" texts that no branch takes are left out";
}

TEST_F(ClickTrailTest, AScriptThatActsOnAClickElsewhereIsTold) {
  PutObject(files, {.type = "button",
                    .name = "start",
                    .width = 50,
                    .height = 50,
                    .states = {{.name = "default", .script = "click"}, {.name = "better1"}},
                    .scripts = {{"click", "if action = *not\nchange better1\nendif\n"}}});
  Start();
  Click(700, 20);
  EXPECT_THAT(Told(trail), ElementsAre("S start<click: handmouseclicknot",
                                       "B start<Info\\start\\script_click.txt:2: if action = *not",
                                       "D start<: change better1", "T start<default: better1"));
}

TEST_F(ClickTrailTest, AHitWithoutAMatchingBranchSaysSo) {
  PutObject(files, ClickButton("start", "change better1\n"));
  Start();
  Send("cursor_bandaid");
  Click(700, 20);  // the click behind a change of pointer doesn't reach the screen
  Click(120, 120);
  EXPECT_THAT(Told(trail),
              ElementsAre("H start<: ", "S start<click: bandaidmouseclick", "B start<: "));
}

TEST_F(ClickTrailTest, AnElseIsABranchToo) {
  PutObject(files, {.type = "button",
                    .name = "start",
                    .width = 50,
                    .height = 50,
                    .states = {{.name = "default", .script = "click"}, {.name = "better1"}},
                    .scripts = {{"click",
                                 "if action = never\nmtp a\nelseif action = *mouseover\nmtp b\n"
                                 "else\nchange better1\nendif\n"}}});
  Start();
  Click(120, 120);
  EXPECT_THAT(Told(trail),
              ElementsAre("H start<: ", "S start<click: handmouseclick", "B start<: else",
                          "D start<: change better1", "T start<default: better1"));
}

TEST_F(ClickTrailTest, TheNextClickBeginsANewTrailAndWhatHappensBetweenIsNotOnIt) {
  Start();
  Click(120, 120);
  const auto steps = trail.Steps().size();
  Move(10, 10);
  Tick(500);
  Send("toobj_doctor_changestate_toomany");
  EXPECT_EQ(trail.Steps().size(), steps);
  Click(700, 20);
  EXPECT_EQ(trail.Place(), "700,20");
  EXPECT_EQ(trail.Clicks(), 2);
}

TEST_F(ClickTrailTest, TellsThatAPickedToolKeptTheClickFromTheScreen) {
  Start();
  Send("cs_dogroom");
  Click(80, 520);  // on a tool
  EXPECT_TRUE(trail.Skipped());
  Click(700, 20);
  EXPECT_FALSE(trail.Skipped());
}

TEST_F(ClickTrailTest, APointerThatTheScreenItselfChangesKeepsNothingFromIt) {
  PutObject(files, ClickButton("start", "mtp cursor_bandaid\n"));
  Start();
  Click(120, 120);
  EXPECT_FALSE(trail.Skipped());
}

TEST_F(ClickTrailTest, AClickSentByAScriptIsAStepOfTheTrail) {
  PutObject(files, ClickButton("start", "mtp mouseclick_700_20\nchange better1\n"));
  Start();
  Click(120, 120);
  const Lines told = Told(trail);
  EXPECT_EQ(trail.Place(), "120,120");
  EXPECT_THAT(told, testing::Contains("C hand<: 700,20"));
  EXPECT_EQ(told.back(), "T start<default: better1") << "what follows is still on it";
}

TEST_F(ClickTrailTest, ALongTrailIsCutAndSaysHowMuchIsMissing) {
  std::string lines;
  for (int i = 0; i < 400; ++i) lines += "change better1\n";
  PutObject(files, ClickButton("start", lines));
  Start();
  Click(120, 120);
  EXPECT_EQ(trail.Steps().size(), ClickTrail::kMostSteps);
  EXPECT_EQ(trail.LeftOut(), 3 + 2 * 400 - ClickTrail::kMostSteps);
}

}  // namespace
}  // namespace quendle
