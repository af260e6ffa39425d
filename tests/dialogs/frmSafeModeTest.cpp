#include "dialogs/frmSafeMode.h"

#include <gtest/gtest.h>

#include "dialogs/FormBench.h"

namespace quendle {
namespace {

struct frmSafeModeTest : testing::Test, FormBench {
  RecordingPrompt prompt;
  frmSafeMode dialog{Services(), prompt};
  frmSafeModeTest() {
    Put("gamemode.txt", "Normal\r\n");
    dialog.Show();
  }
};

TEST_F(frmSafeModeTest, ItExplainsTheSafeModeAndOffersBoth) {
  Form& form = dialog.Record();
  EXPECT_EQ(form.caption, "Wumbly");
  EXPECT_EQ(TextOf(form, "Label1"),
            "If the game freezed the last time you played, please select \"Safe Mode\" and click "
            "\"Ok\"");
  EXPECT_EQ(TextOf(form, "Frame1"), "Game Mode");
  EXPECT_EQ(TextOf(form, "optNormal"), "Normal Mode");
  EXPECT_EQ(TextOf(form, "optSafe"), "Safe Mode");
  EXPECT_EQ(SeenPictures(form), "ok minimise maximise close");
}

TEST_F(frmSafeModeTest, NormalModeStandsAtFirstAndWritesNothing) {
  EXPECT_EQ(ValueOf(dialog.Record(), "optNormal"), 1);
  EXPECT_EQ(ValueOf(dialog.Record(), "optSafe"), 0);
  files.Record(true);
  host.Press("Picture1", 1);
  EXPECT_TRUE(files.Operations().empty());
  EXPECT_FALSE(settings.SafeMode);
  EXPECT_FALSE(dialog.Record().visible);
  EXPECT_EQ(prompt.calls, std::vector<std::string>{"Show"});
}

TEST_F(frmSafeModeTest, SafeModeIsSetAndReplacesTheFile) {
  host.Press("optSafe");
  EXPECT_FALSE(settings.SafeMode) << "only OK sets it";
  host.Press("Picture1", 1);
  EXPECT_TRUE(settings.SafeMode);
  EXPECT_EQ(File("GameMode.txt"), "Safe\r\n");
  EXPECT_EQ(files.Paths().size(), 1u) << "one file, whatever its case";
  EXPECT_EQ(prompt.calls, std::vector<std::string>{"Show"});
}

TEST_F(frmSafeModeTest, ASystemThatEndsTheProgramAnswersNothing) {
  host.Press("optSafe");
  EXPECT_THROW(host.EndProgram(), ProcessEnds);
  EXPECT_FALSE(settings.SafeMode);
  EXPECT_EQ(File("GameMode.txt"), "Normal\r\n");
  EXPECT_EQ(prompt.calls, std::vector<std::string>{"Unload"});
}

TEST_F(frmSafeModeTest, ClosingIsOk) {
  for (int way : {7, 8, 0}) {
    settings.SafeMode = false;
    prompt.calls.clear();
    dialog.Show();
    host.Press("optSafe");
    if (way > 0) {
      host.Press("Picture1", way);
    } else {
      host.Close();
    }
    EXPECT_TRUE(settings.SafeMode) << way;
    EXPECT_FALSE(dialog.Record().visible) << way;
    EXPECT_EQ(prompt.calls, std::vector<std::string>{"Show"}) << way;
  }
}

TEST_F(frmSafeModeTest, TitleBarMinimisesAndBeeps) {
  host.Press("Picture1", 6);
  EXPECT_EQ(system.beeps, 1);
  host.Press("Picture1", 4);
  EXPECT_EQ(dialog.Record().window_state, WindowState::kMinimised);
  EXPECT_TRUE(prompt.calls.empty());
}

}  // namespace
}  // namespace quendle
