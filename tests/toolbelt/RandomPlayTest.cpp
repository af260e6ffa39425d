#include "toolbelt/play/RandomPlay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "backends/files/DiskFileSystem.h"
#include "toolbelt/TreeBench.h"
#include "toolbelt/drive/Arguments.h"
#include "toolbelt/drive/Drive.h"
#include "toolbelt/play/Shortening.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using Lines = std::vector<std::string>;

bool Has(const Lines& lines, const std::string& line) {
  return std::ranges::find(lines, line) != lines.end();
}

Lines Numbers(int count) {
  Lines lines;
  for (int i = 0; i < count; ++i) lines.push_back(std::to_string(i));
  return lines;
}

TEST(ShortenLines, OnlyWhatTheFaultNeedsIsLeft) {
  const auto fails = [](const Lines& lines) { return Has(lines, "3") && Has(lines, "77"); };
  EXPECT_THAT(ShortenLines(Numbers(100), fails, 1000), ElementsAre("3", "77"));
}

TEST(ShortenLines, ALineThatAnotherOneNeededGoesAfterIt) {
  // "b" is needed as long as "a" is there.
  const auto fails = [](const Lines& lines) {
    return Has(lines, "x") && (!Has(lines, "a") || Has(lines, "b"));
  };
  EXPECT_THAT(ShortenLines({"a", "b", "x"}, fails, 1000), ElementsAre("x"));
}

TEST(ShortenLines, AFaultOfItsOwnNeedsNoLine) {
  EXPECT_THAT(ShortenLines(
                  Numbers(10), [](const Lines&) { return true; }, 1000),
              IsEmpty());
  EXPECT_THAT(ShortenLines(
                  {}, [](const Lines&) { return true; }, 1000),
              IsEmpty());
}

TEST(ShortenLines, WhatIsLeftFailsAlsoWhenTheRunsAreUsedUp) {
  std::size_t runs = 0;
  const auto fails = [&runs](const Lines& lines) {
    ++runs;
    return Has(lines, "50");
  };
  const Lines left = ShortenLines(Numbers(100), fails, 5);
  EXPECT_EQ(runs, 5u);
  EXPECT_TRUE(Has(left, "50"));
  EXPECT_LT(left.size(), 100u);
}

struct RandomPlayTest : testing::Test, TreeBench {
  RandomPlayTest() {
    settings.content = Path();
    settings.events = 300;
  }
  int Play() {
    out.str("");
    errors.str("");
    return PlayRandomly(settings, out, errors);
  }
  RandomSettings settings;
  std::ostringstream out, errors;
};

TEST_F(RandomPlayTest, ATreeWithoutAFaultStandsItAll) {
  const auto before = Files();
  EXPECT_EQ(Play(), 0) << errors.str();
  EXPECT_THAT(out.str(),
              MatchesRegex("300 events in [0-9]+ games?, 2 screens: hall introscreen\n"));
  EXPECT_EQ(Files(), before);
}

TEST_F(RandomPlayTest, TheSameSeedPlaysTheSameEvents) {
  Replace("backdoor/backdoorscript.txt", "mtp cs_introscreen", "runsound creak");
  EXPECT_EQ(Play(), 3);
  const std::string first = out.str();
  EXPECT_EQ(Play(), 3);
  EXPECT_EQ(out.str(), first);
  settings.options.seed = 2;
  EXPECT_EQ(Play(), 3);
  EXPECT_NE(out.str(), first);
}

TEST_F(RandomPlayTest, AFaultIsShownByAShortScriptThatDriveCanPlay) {
  Replace("backdoor/backdoorscript.txt", "mtp cs_introscreen", "runsound creak");
  settings.output = Beside("fault.drive");
  settings.difficulty = "Hard";
  EXPECT_EQ(Play(), 3);
  EXPECT_THAT(errors.str(), HasSubstr("has no sound \"creak\""));
  const std::string script = Read(settings.output);
  EXPECT_THAT(out.str(), HasSubstr(script));
  // Into the hall, and the door.
  EXPECT_THAT(out.str(), HasSubstr("# 2 of "));
  EXPECT_THAT(script, MatchesRegex("#: --edition 2 --seed 1 --path directdraw\n"
                                   "# object \"hall/backdoor\" has no sound \"creak\"\n"
                                   "start\npress Picture1 1\nset optHard on\npress Picture1 1\n"
                                   "click .*\nclick .*\n"));
  Faults faults;
  const std::string user = Beside("user");
  std::filesystem::create_directories(user);
  DiskFileSystem files({Path(), user, ""}, faults);
  DriveSession session(files, faults, Path(), settings.options);
  std::istringstream in(script);
  std::ostringstream answers;
  EXPECT_EQ(RunDriveSession(session, in, answers), 3);
  EXPECT_THAT(answers.str(), HasSubstr("has no sound"));
}

TEST_F(RandomPlayTest, AGameCanBeginAtAScreen) {
  Replace("backdoor/backdoorscript.txt", "mtp cs_introscreen", "runsound creak");
  settings.from = "hall";
  EXPECT_EQ(Play(), 3);
  EXPECT_THAT(out.str(), HasSubstr("# 1 of "));
  EXPECT_THAT(out.str(), HasSubstr("\nplay\nsend cs_hall\nclick "));
  settings.from = "hell";
  EXPECT_THROW(Play(), CommandRefused);
}

TEST_F(RandomPlayTest, AGameThatCannotStartNeedsNoEvent) {
  std::filesystem::remove(File("hall/hall.txt"));
  Put("introscreen/introscreenstates.txt", "default\nnothing\nroo\nnothing\nunused\nunused\n");
  EXPECT_EQ(Play(), 3);
  EXPECT_THAT(out.str(), HasSubstr("# 0 of 0 events"));
}

}  // namespace
}  // namespace quendle
