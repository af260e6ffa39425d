#include "toolbelt/play/Walk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

#include "toolbelt/TreeBench.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

// A walk over a new tree on the disk.
struct WalkTest : testing::Test, TreeBench {
  // The hall gets a patient whose script has these lines.
  void AddPatient(const std::string& lines) {
    Put("hall/hallchildren.txt", "\\Info\\hall\\dog.txt xpos_300 ypos_300\n");
    Put("hall/dog.txt",
        "patient\ndog\n0\n50\n50\n0\n<CurrentDirectory>\\dogdata.txt\nnothing\nstate_default\n");
    Put("hall/dogdata.txt",
        "<CurrentDirectory>\\dogstates.txt\nnothing\nnothing\n<CurrentDirectory>\\dogscripts.txt\n"
        "unused\n");
    Put("hall/dogstates.txt",
        "default\nnothing\nnothing\nill\nunused\nunused\n"
        "default-owww\nnothing\nnothing\nnothing\nunused\nunused\n");
    Put("hall/dogscripts.txt", "ill\n<CurrentDirectory>\\dogscript.txt\nunused\n");
    Put("hall/dogscript.txt", "begin\n" + lines + "end\n");
  }
  int Walk() {
    out.str("");
    errors.str("");
    settings.content = Path();
    return RunWalk(settings, out, errors);
  }

  WalkSettings settings;
  std::ostringstream out, errors;
};

TEST_F(WalkTest, AllScreensAreVisitedAndTheTreeStaysAsItWas) {
  const auto before = Files();
  EXPECT_EQ(Walk(), 0);
  EXPECT_THAT(out.str(), testing::MatchesRegex("introscreen: 5 clicks \\(no patient\\), .*\n"
                                               "introscreen: 5 clicks \\(no patient\\), .*\n"
                                               "hall: [0-9]+ changes of state, 0 sounds\n"
                                               "3 visits, 10 clicks, 0 warnings\n"));
  EXPECT_EQ(errors.str(), "");
  EXPECT_EQ(Files(), before);
}

TEST_F(WalkTest, APatientGetsEveryWordFiveTimes) {
  AddPatient("if action = soapmouseclick\nchange default\nendif\n");
  Append("screens.txt", "\\Info\\tools\\tools.txt\n");
  settings.words = {"hand", "soap"};
  Put("screens.txt",
      "\\Info\\introscreen\\introscreen.txt\n\\Info\\hall\\hall.txt\n\\Info\\last\\last.txt\n"
      "\\Info\\tools\\tools.txt\n\\Info\\cursors\\cursors.txt\n");
  Put("last/last.txt", Get("introscreen/introscreen.txt"));
  EXPECT_EQ(Walk(), 3) << "two screens of one name";
  std::string last = Get("cursors/cursors.txt");
  last.replace(last.find("cursors\n"), 7, "last");
  last.replace(last.find("overlay"), 7, "hall");
  last.replace(last.find("<CurrentDirectory>"), 18, "\\Info\\cursors");
  Put("last/last.txt", last);
  EXPECT_EQ(Walk(), 0) << errors.str();
  EXPECT_THAT(out.str(), HasSubstr("hall: 10 clicks, 10 taken, "));
}

TEST_F(WalkTest, AFaultIsToldWithItsPlace) {
  Replace("hall/hallstates.txt", "room", "rom");
  EXPECT_EQ(Walk(), 3);
  EXPECT_THAT(errors.str(), HasSubstr("on screen hall: "));
  EXPECT_THAT(errors.str(), HasSubstr("Info\\hall\\hallstates.txt:1: "));
  EXPECT_THAT(errors.str(), HasSubstr("did you mean \"room\"?"));
  EXPECT_THAT(errors.str(), HasSubstr("  in work: cs_hall\n"));
  EXPECT_THAT(out.str(), HasSubstr("introscreen: 5 clicks"));
}

TEST_F(WalkTest, OnlyTheLongWalkFindsWhatAClickBreaks) {
  AddPatient("if action = *soapmouseclick\nrunsound bark\nendif\n");
  Append("introscreen/introscreenchildren.txt", "\\Info\\hall\\dog.txt xpos_300 ypos_300\n");
  settings.brief = true;
  EXPECT_EQ(Walk(), 0) << errors.str();
  settings.brief = false;
  EXPECT_EQ(Walk(), 0) << "without soap: " << errors.str();
  settings.words = {"hand", "soap"};
  EXPECT_EQ(Walk(), 3);
  EXPECT_THAT(errors.str(), HasSubstr("dogstates.txt:1: "));
  EXPECT_THAT(errors.str(), HasSubstr("  object:  introscreen/dog\n"));
}

TEST_F(WalkTest, AWarningOfTheLogIsAFinding) {
  Put("doodle.wma", "no sound at all");
  EXPECT_EQ(Walk(), 1);
  EXPECT_THAT(out.str(), HasSubstr("doodle.wma"));
  EXPECT_THAT(out.str(), HasSubstr(", 1 warning\n"));
}

TEST_F(WalkTest, WhatAPlayerLeftInTheTreeIsNotSeen) {
  Put("../GameRunning.txt", "");  // an empty one is fatal
  Put("../userdata.txt", "damaged");
  const auto before = Files();
  EXPECT_EQ(Walk(), 0) << errors.str();
  EXPECT_EQ(Files(), before);
}

TEST_F(WalkTest, WordsComeFromAFileOrFromTheCommandLine) {
  EXPECT_THAT(ReadActionWords("hand, soap,,bandaid"), ElementsAre("hand", "soap", "bandaid"));
  Put("words.txt", "# tools\r\nhand\r\n\r\n  soap \n");
  EXPECT_THAT(ReadActionWords(Path() + "/Info/words.txt"), ElementsAre("hand", "soap"));
  EXPECT_THROW(ReadActionWords(","), std::runtime_error);
  EXPECT_THROW(ReadActionWords(Path() + "/Info/wrods.txt"), std::runtime_error);
  EXPECT_THROW(ReadActionWords("words.txt"), std::runtime_error) << "no tool has such a name";
  Put("words.txt", "# nothing\n");
  EXPECT_THROW(ReadActionWords(Path() + "/Info/words.txt"), std::runtime_error);
}

}  // namespace
}  // namespace quendle
