#include "dialogs/frmOptionsMenu.h"

#include <gtest/gtest.h>

#include "base/FatalError.h"
#include "dialogs/FormBench.h"

namespace quendle {
namespace {

struct frmOptionsMenuTest : testing::Test, FormBench {
  RecordingPrompt prompt;
  frmOptionsMenu& Dialog() {
    if (!dialog) dialog = std::make_unique<frmOptionsMenu>(Services(), prompt);
    return *dialog;
  }
  Form& Shown() {
    Dialog().SyncControls();
    Dialog().Show();
    return Dialog().Record();
  }
  std::unique_ptr<frmOptionsMenu> dialog;
};

TEST_F(frmOptionsMenuTest, ItShowsFourGroupsOfOptionsAndTwoAddresses) {
  Form& form = Shown();
  EXPECT_EQ(form.name, "frmOptionsMenu");
  EXPECT_EQ(form.caption, "Options Menu -- Wumbly");
  EXPECT_EQ(TextOf(form, "Label1"), "Game Options...");
  EXPECT_EQ(TextOf(form, "Frame1"), "Difficulty Level");
  EXPECT_EQ(TextOf(form, "optEasy"), "Easy");
  EXPECT_EQ(TextOf(form, "optMedium"), "Normal");
  EXPECT_EQ(TextOf(form, "optHard"), "Hard");
  EXPECT_EQ(TextOf(form, "Frame2"), "Your Child's Photo in the Game");
  EXPECT_EQ(TextOf(form, "optOn"), "On");
  EXPECT_EQ(TextOf(form, "optOff"), "Off");
  EXPECT_EQ(TextOf(form, "Frame3"), "Graphics Mode");
  EXPECT_EQ(TextOf(form, "opt16Bit"), "16-bit");
  EXPECT_EQ(TextOf(form, "opt32Bit"), "32-bit");
  EXPECT_EQ(TextOf(form, "Frame4"), "Reset Game");
  EXPECT_EQ(TextOf(form, "chkResetGame"), "Yes, I Want To Cure All The Animals Again");
  EXPECT_EQ(TextOf(form, "Label2"), settings.WebAddress);
  EXPECT_EQ(TextOf(form, "Label3"), settings.SupportAddress);
}

TEST_F(frmOptionsMenuTest, TheLookIsEightPicturesAndSixteenLines) {
  Form& form = Shown();
  EXPECT_EQ(SeenPictures(form), "ok minimise maximise close");
  EXPECT_NE(form.Find("Picture1", 8), nullptr);
  EXPECT_EQ(form.Find("Picture1", 9), nullptr);
  EXPECT_NE(form.Find("lines", 16), nullptr);
  EXPECT_EQ(form.Find("lines", 17), nullptr);
}

TEST_F(frmOptionsMenuTest, ControlsShowTheSettings) {
  settings.GraphicsMode = 16;
  settings.DifficultyLevel = "HARD";
  settings.PersonalizeOn = true;
  Form& form = Shown();
  EXPECT_EQ(ValueOf(form, "opt16Bit"), 1);
  EXPECT_EQ(ValueOf(form, "opt32Bit"), 0);
  EXPECT_EQ(ValueOf(form, "optHard"), 1);
  EXPECT_EQ(ValueOf(form, "optMedium"), 0);
  EXPECT_EQ(ValueOf(form, "optOn"), 1);
  EXPECT_EQ(ValueOf(form, "optOff"), 0);
}

TEST_F(frmOptionsMenuTest, EveryWordButEasyAndHardMeansNormal) {
  for (const char* word : {"normal", "Normal", "", "hardest"}) {
    settings.DifficultyLevel = word;
    EXPECT_EQ(ValueOf(Shown(), "optMedium"), 1) << word;
    EXPECT_EQ(ValueOf(Shown(), "optEasy") + ValueOf(Shown(), "optHard"), 0) << word;
  }
  settings.DifficultyLevel = "easy";
  EXPECT_EQ(ValueOf(Shown(), "optEasy"), 1);
}

TEST_F(frmOptionsMenuTest, OkStoresTheChoicesAndGoesBackToThePrompt) {
  Form& form = Shown();
  EXPECT_TRUE(host.Press("opt16Bit"));
  EXPECT_TRUE(host.Press("optOn"));
  EXPECT_TRUE(host.Press("optHard"));
  EXPECT_TRUE(host.Press("Picture1", 1));
  EXPECT_EQ(settings.GraphicsMode, 16);
  EXPECT_TRUE(settings.PersonalizeOn);
  EXPECT_EQ(settings.DifficultyLevel, "Hard");
  EXPECT_FALSE(form.visible);
  EXPECT_FALSE(form.enabled);
  EXPECT_EQ(prompt.calls, std::vector<std::string>{"Show"});
}

TEST_F(frmOptionsMenuTest, OkStoresTheOtherChoicesToo) {
  settings.GraphicsMode = 16;
  settings.PersonalizeOn = true;
  Shown();
  host.Press("opt32Bit");
  host.Press("optOff");
  host.Press("optEasy");
  host.Press("Picture1", 2);
  EXPECT_EQ(settings.GraphicsMode, 32);
  EXPECT_FALSE(settings.PersonalizeOn);
  EXPECT_EQ(settings.DifficultyLevel, "Easy");
}

TEST_F(frmOptionsMenuTest, NormalIsStoredWithACapital) {
  settings.DifficultyLevel = "normal";
  Shown();
  host.Press("Picture1", 1);
  EXPECT_EQ(settings.DifficultyLevel, "Normal");
}

TEST_F(frmOptionsMenuTest, OkAloneTouchesNoFile) {
  Put("userdata.txt", "saved");
  Put("autosave.txt", "snapshot");
  files.Record(true);
  Shown();
  host.Press("optHard");
  host.Press("Picture1", 1);
  EXPECT_TRUE(files.Operations().empty());
  EXPECT_EQ(File("userdata.txt"), "saved");
  EXPECT_EQ(File("autosave.txt"), "snapshot");
}

TEST_F(frmOptionsMenuTest, ResetDeletesTheSavedGameAndItsSnapshot) {
  Put("UserData.txt", "saved");
  Put("autosave.txt", "snapshot");
  Put("HelpSys.txt", "kept");
  Shown();
  host.Press("chkResetGame");
  EXPECT_EQ(File("userdata.txt"), "saved") << "only OK deletes";
  host.Press("Picture1", 1);
  EXPECT_EQ(File("userdata.txt"), "(none)");
  EXPECT_EQ(File("autosave.txt"), "(none)");
  EXPECT_EQ(File("HelpSys.txt"), "kept");
}

TEST_F(frmOptionsMenuTest, TheResetBoxIsEmptyEachTimeTheOptionsAreOpened) {
  Form& form = Shown();
  host.Press("chkResetGame");
  EXPECT_EQ(ValueOf(form, "chkResetGame"), 1);
  Shown();
  EXPECT_EQ(ValueOf(form, "chkResetGame"), 0);
}

TEST_F(frmOptionsMenuTest, ResetWithoutASavedGameDoesNothing) {
  Shown();
  host.Press("chkResetGame");
  EXPECT_NO_THROW(host.Press("Picture1", 1));
  EXPECT_TRUE(files.Paths().empty());
  EXPECT_EQ(prompt.calls, std::vector<std::string>{"Show"});
}

TEST_F(frmOptionsMenuTest, ASavedGameThatCantBeDeletedIsFatalAndNamed) {
  Put("userdata.txt", "saved");
  faults.Plan("remove", 0, 0, false);
  Shown();
  host.Press("chkResetGame");
  try {
    host.Press("Picture1", 1);
    FAIL() << "no fault";
  } catch (const FatalError& error) {
    EXPECT_STREQ(error.what(), "userdata.txt: the file can't be deleted");
  }
}

TEST_F(frmOptionsMenuTest, ClosingStoresNothing) {
  Put("userdata.txt", "saved");
  for (const char* way : {"7", "8", "system"}) {
    Form& form = Shown();
    host.Press("optHard");
    host.Press("opt16Bit");
    host.Press("chkResetGame");
    if (std::string(way) == "system") {
      host.Close();
    } else {
      host.Press("Picture1", way[0] - '0');
    }
    EXPECT_FALSE(form.visible) << way;
    EXPECT_EQ(settings.DifficultyLevel, "normal") << way;
    EXPECT_EQ(settings.GraphicsMode, 32) << way;
    EXPECT_EQ(File("userdata.txt"), "saved") << way;
  }
  EXPECT_EQ(prompt.calls, (std::vector<std::string>{"Show", "Show", "Show"}));
}

TEST_F(frmOptionsMenuTest, ASecondOpeningShowsWhatWasSaved) {
  Shown();
  host.Press("optHard");
  host.Press("chkResetGame");
  host.Press("Picture1", 1);
  EXPECT_EQ(ValueOf(Shown(), "optHard"), 1);
  EXPECT_EQ(ValueOf(Shown(), "chkResetGame"), 0) << "a reset is asked for anew each time";
  host.Press("optEasy");
  host.Press("Picture1", 7);
  EXPECT_EQ(ValueOf(Shown(), "optHard"), 1) << "what was closed without OK is forgotten";
}

TEST_F(frmOptionsMenuTest, TitleBarMinimisesAndBeeps) {
  Form& form = Shown();
  for (int index : {5, 6}) host.Press("Picture1", index);
  EXPECT_EQ(system.beeps, 2);
  EXPECT_EQ(form.window_state, WindowState::kNormal);
  for (int index : {3, 4}) {
    host.Press("Picture1", index);
    EXPECT_EQ(form.window_state, WindowState::kMinimised) << index;
    EXPECT_TRUE(form.visible);
    host.OverForm();
    EXPECT_EQ(form.window_state, WindowState::kNormal) << "reached for, it comes back";
  }
  EXPECT_TRUE(prompt.calls.empty());
}

TEST_F(frmOptionsMenuTest, AHighlightEndsWhenThePointerLeavesOntoTheForm) {
  Form& form = Shown();
  host.Over("Picture1", 1);
  EXPECT_EQ(SeenPictures(form), "ok-highlight minimise maximise close");
  host.Over("Picture1", 2);
  EXPECT_EQ(SeenPictures(form), "ok-highlight minimise maximise close") << "even: ignored";
  host.Over("Picture1", 7);
  EXPECT_EQ(SeenPictures(form), "ok minimise maximise close-highlight");
  host.Over("Picture1", 4);
  EXPECT_EQ(SeenPictures(form), "ok minimise maximise close-highlight") << "even: ignored";
  host.OverForm();
  EXPECT_EQ(SeenPictures(form), "ok minimise maximise close");
}

TEST_F(frmOptionsMenuTest, LinksLightUpUnderThePointerAndOpen) {
  Form& form = Shown();
  host.Over("Label2");
  EXPECT_TRUE(form.Find("Label2")->hover);
  host.Over("Label3");
  EXPECT_FALSE(form.Find("Label2")->hover);
  EXPECT_TRUE(form.Find("Label3")->hover);
  host.OverForm();
  EXPECT_FALSE(form.Find("Label3")->hover);
  host.Over("Label1");
  EXPECT_FALSE(form.Find("Label1")->hover);

  host.Press("Label1");
  host.Press("Label2");
  host.Press("Label3");
  EXPECT_EQ(system.opened,
            (std::vector<std::string>{settings.WebAddress, "mailto:" + settings.SupportAddress}));
}

}  // namespace
}  // namespace quendle
