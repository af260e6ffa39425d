#include "dialogs/frmDifficultyMenu.h"

#include <gtest/gtest.h>

#include "base/FatalError.h"
#include "dialogs/FormBench.h"

namespace quendle {
namespace {

struct frmDifficultyMenuTest : testing::Test, FormBench {
  RecordingPrompt prompt;
  frmDifficultyMenu dialog{Services(), prompt};
  Form& Shown() {
    dialog.SyncControls();
    dialog.Show();
    return dialog.Record();
  }
};

TEST_F(frmDifficultyMenuTest, ItAsksForTheAgeInThreeGroups) {
  Form& form = Shown();
  EXPECT_EQ(form.caption, "Options Menu -- Wumbly");
  EXPECT_EQ(TextOf(form, "Label1"), "Select Child's Age...");
  EXPECT_EQ(TextOf(form, "Frame1"), "Age Group");
  EXPECT_EQ(TextOf(form, "optEasy"), "3 - 4 Years Old");
  EXPECT_EQ(TextOf(form, "optMedium"), "5 - 7 Years Old");
  EXPECT_EQ(TextOf(form, "optHard"), "8+ Years Old");
  EXPECT_EQ(SeenPictures(form), "ok minimise maximise close");
}

TEST_F(frmDifficultyMenuTest, OkStoresTheAnswerForGoodAndGoesOnWithPlay) {
  const std::vector<std::pair<std::string, std::string>> answers = {
      {"optEasy", "Easy"}, {"optMedium", "Normal"}, {"optHard", "Hard"}};
  for (const auto& [radio, level] : answers) {
    files.Remove("/clinic\\DialogMode.txt");
    prompt.calls.clear();
    Form& form = Shown();
    host.Press(radio);
    EXPECT_EQ(File("DialogMode.txt"), "(none)") << "a choice alone writes nothing";
    host.Press("Picture1", 1);
    EXPECT_EQ(settings.DifficultyLevel, level);
    EXPECT_EQ(File("DialogMode.txt"), "On\r\n");
    EXPECT_FALSE(form.visible);
    EXPECT_EQ(prompt.calls, std::vector<std::string>{"btnNormal_Click"}) << radio;
  }
}

TEST_F(frmDifficultyMenuTest, ClosingLeavesTheQuestionOpen) {
  for (int way : {7, 8, 0}) {
    prompt.calls.clear();
    Form& form = Shown();
    host.Press("optHard");
    if (way > 0) {
      host.Press("Picture1", way);
    } else {
      host.Close();
    }
    EXPECT_FALSE(form.visible);
    EXPECT_EQ(prompt.calls, std::vector<std::string>{"Show"});
    EXPECT_EQ(settings.DifficultyLevel, "normal");
    EXPECT_EQ(File("DialogMode.txt"), "(none)");
  }
}

TEST_F(frmDifficultyMenuTest, TheRadioButtonsShowTheSettingAtEachOpening) {
  EXPECT_EQ(ValueOf(Shown(), "optMedium"), 1);
  host.Press("optEasy");
  host.Press("Picture1", 7);
  settings.DifficultyLevel = "Hard";
  EXPECT_EQ(ValueOf(Shown(), "optHard"), 1);
  EXPECT_EQ(ValueOf(Shown(), "optEasy"), 0);
}

TEST_F(frmDifficultyMenuTest, AnAnswerThatCantBeWrittenHoldsForThisRun) {
  faults.Plan("write", 0, 0, false);
  Shown();
  host.Press("Picture1", 1);
  EXPECT_FALSE(prompt.calls.empty());
  EXPECT_EQ(File("DialogMode.txt"), "(none)");
  EXPECT_TRUE(content.FileExistsAt(settings.BaseDirectory + "\\DialogMode.txt"));
}

}  // namespace
}  // namespace quendle
