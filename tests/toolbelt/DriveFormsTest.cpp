#include "toolbelt/DriveBench.h"

namespace quendle {
namespace {

using testing::HasSubstr;

const Json* ControlOf(const Json& answer, const std::string& name, int index = 0) {
  for (const Json& control : answer["form"]["controls"]) {
    if (control["name"] == name && control["index"] == index) return &control;
  }
  return nullptr;
}

bool Shown(const Json& answer, const std::string& form) {
  for (const Json& entry : answer["forms"]) {
    if (entry["name"] == form) return entry["visible"];
  }
  return false;
}

TEST(DriveForms, StartWaitsAtTheStartUpForm) {
  DriveBench bench;
  const Json answer = bench.Do("start");
  EXPECT_EQ(answer["form"]["name"], "TandrelPrompt");
  EXPECT_EQ(answer["form"]["caption"], "Wumbly");
  EXPECT_EQ(answer["form"]["windowState"], "normal");
  const Json* play = ControlOf(answer, "Picture1", 1);
  ASSERT_NE(play, nullptr);
  for (const char* field : {"name", "index", "kind", "text", "visible", "enabled", "value", "x",
                            "y", "width", "height"}) {
    EXPECT_TRUE(play->contains(field)) << field;
  }
  EXPECT_EQ((*play)["kind"], "picture");
  EXPECT_TRUE(Shown(answer, "TandrelPrompt"));
  EXPECT_THAT(bench.Refused("start"), HasSubstr("already"));
}

TEST(DriveForms, PlayAnswersTheQuestionsOnTheWay) {
  DriveBench bench;
  const Json state = bench.Do("play");
  EXPECT_EQ(state["screen"], "introscreen");
  EXPECT_EQ(state["difficulty"], "Normal");
  EXPECT_TRUE(bench.Do("form")["form"].is_null());
  EXPECT_THAT(bench.Refused("play"), HasSubstr("on already"));
}

TEST(DriveForms, PlayAfterACrashTakesTheNormalMode) {
  DriveBench bench;
  bench.Do("play");
  bench.Restart();
  EXPECT_EQ(bench.Do("start")["form"]["name"], "frmSafeMode");
  const Json state = bench.Do("play");
  EXPECT_EQ(state["safeMode"], false);
  EXPECT_EQ(state["screen"], "introscreen");
}

TEST(DriveForms, ThePointerOverAButtonHighlightsItAndOverTheFormClears) {
  DriveBench bench;
  bench.Do("start");
  Json answer = bench.Do("over 1");
  EXPECT_EQ((*ControlOf(answer, "Picture1", 2))["visible"], true);
  answer = bench.Do("over form");
  EXPECT_EQ((*ControlOf(answer, "Picture1", 2))["visible"], false);
  answer = bench.Do("over Picture1 1");
  EXPECT_EQ((*ControlOf(answer, "Picture1", 2))["visible"], true);
}

TEST(DriveForms, OptionsAreSetAndStored) {
  DriveBench bench;
  bench.Do("start");
  Json answer = bench.Do("press 5");
  EXPECT_EQ(answer["form"]["name"], "frmOptionsMenu");
  answer = bench.Do("set optEasy on");
  EXPECT_EQ((*ControlOf(answer, "optEasy"))["value"], 1);
  EXPECT_EQ((*ControlOf(answer, "optMedium"))["value"], 0);
  bench.Do("press 1");
  EXPECT_EQ(bench.Do("state")["difficulty"], "Easy");
}

TEST(DriveForms, WhatIsNotThereIsRefused) {
  DriveBench bench;
  EXPECT_THAT(bench.Refused("press 1"), HasSubstr("start"));
  bench.Do("start");
  EXPECT_THAT(bench.Refused("press 99"), HasSubstr("\"Picture1\" 99"));
  EXPECT_THAT(bench.Refused("press 99999"), HasSubstr("number of a button"));
  EXPECT_THAT(bench.Refused("over nosuch"), HasSubstr("\"nosuch\" 0"));
  EXPECT_THAT(bench.Refused("set Label1 on"), HasSubstr("\"Label1\""));
  EXPECT_THAT(bench.Refused("set optEasy maybe"), HasSubstr("neither on, off nor a number"));
  EXPECT_THAT(bench.Refused("point 10 10"), HasSubstr("Image1"));
  EXPECT_THAT(bench.Refused("move 1 1"), HasSubstr("not open"));
  EXPECT_THAT(bench.Refused("draw"), HasSubstr("no game is on"));
}

TEST(DriveForms, ALinkHandsItsAddressToTheShell) {
  DriveBench bench;
  bench.Do("start");
  bench.Do("press Label2");
  const Json opened = bench.Do("opened")["opened"];
  ASSERT_EQ(opened.size(), 1u);
  EXPECT_EQ(opened[0], "https://www.quendle.example/wumbly");
  EXPECT_TRUE(bench.Do("opened")["opened"].empty());
}

TEST(DriveForms, AMinimisedFormIsToldAndComesBack) {
  DriveBench bench;
  bench.Do("start");
  EXPECT_EQ(bench.Do("press 7")["form"]["windowState"], "minimised");
  EXPECT_EQ(bench.Do("over form")["form"]["windowState"], "normal");
}

TEST(DriveForms, ClosingTheStartUpFormSavesTheOptionsAndEnds) {
  DriveBench bench;
  bench.Do("start");
  EXPECT_EQ(bench.Do("close")["ended"], true);
  EXPECT_TRUE(bench.files.Get("\\DifficultyLevel.txt").has_value());
}

}  // namespace
}  // namespace quendle
