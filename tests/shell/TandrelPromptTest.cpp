#include "shell/TandrelPrompt.h"

#include <gtest/gtest.h>

#include "base/FatalError.h"
#include "base/ProcessEnds.h"
#include "shell/LaunchBench.h"

namespace quendle {
namespace {

using Strings = std::vector<std::string>;

struct TandrelPromptTest : testing::Test, LaunchBench {
  // Runs `action`; true if it ended the process without a game to shut down.
  template <class Action>
  bool Ends(Action action) {
    try {
      action();
    } catch (const ProcessEnds& end) {
      return !end.shut_down_game;
    }
    return false;
  }
};

TEST_F(TandrelPromptTest, ItOffersFourThingsAndTwoAddresses) {
  Start();
  Form& form = Prompt();
  EXPECT_EQ(form.name, "TandrelPrompt");
  EXPECT_EQ(form.caption, "Wumbly");
  EXPECT_EQ(TextOf(form, "Label1"), "Please Select an Option...");
  EXPECT_EQ(TextOf(form, "Label2"), settings.WebAddress);
  EXPECT_EQ(TextOf(form, "Label3"), settings.SupportAddress);
  EXPECT_EQ(SeenPictures(form), "play personalize options link minimise maximise close");
  for (int index = 1; index <= 14; ++index) EXPECT_NE(form.Find("Picture1", index), nullptr);
  EXPECT_EQ(form.Find("Picture1", 15), nullptr);
  EXPECT_NE(form.Find("lines", 16), nullptr);
}

TEST_F(TandrelPromptTest, TitleButtonsStandAtTheTopRightAndTwinsBesideThem) {
  Start();
  const int width = Prompt().size.width;
  for (int place = 0; place < 3; ++place) {
    const int left = width - 105 + 32 * place;
    const Control& rest = *Prompt().Find("Picture1", 7 + 2 * place);
    const Control& twin = *Prompt().Find("Picture1", 8 + 2 * place);
    EXPECT_EQ(rest.area.left, left);
    EXPECT_EQ(rest.area.top, 9);
    EXPECT_EQ(twin.area.left, left + 1);
    EXPECT_EQ(twin.area.top, 10);
  }
}

TEST_F(TandrelPromptTest, AllControlsLieClearOfTheBevelAndPicturesOfAPairAreEqual) {
  Start();
  for (const Control& control : Prompt().controls) {
    if (control.kind == ControlKind::kLine) continue;
    EXPECT_GE(control.area.left, 4) << control.name << control.index;
    EXPECT_GE(control.area.top, 4) << control.name << control.index;
    EXPECT_LE(control.area.right, Prompt().size.width - 4) << control.name << control.index;
    EXPECT_LE(control.area.bottom, Prompt().size.height - 4) << control.name << control.index;
  }
  for (int odd = 1; odd < 14; odd += 2) {
    const Rect& rest = Prompt().Find("Picture1", odd)->area;
    const Rect& twin = Prompt().Find("Picture1", odd + 1)->area;
    EXPECT_EQ(rest.Width(), twin.Width());
    EXPECT_EQ(rest.Height(), twin.Height());
  }
}

TEST_F(TandrelPromptTest, TheEditionSetsWordAndName) {
  Start();
  EXPECT_EQ(settings.GameEdition, 2);
  EXPECT_EQ(settings.ProductName, "Wumbly");
}

TEST_F(TandrelPromptTest, TheSiblingEditionHasItsOwnName) {
  Start(1);
  EXPECT_EQ(settings.GameEdition, 1);
  EXPECT_EQ(settings.ProductName, "Tandrel");
  EXPECT_EQ(Prompt().caption, "Tandrel");
  PressPicture(5);
  EXPECT_EQ(host.InView()->caption, "Options Menu -- Tandrel");
}

TEST_F(TandrelPromptTest, ASecondInstanceIsToldAndEndsBeforeAnyFileIsTouched) {
  system.other_instance = true;
  system.version = 4;
  files.Record(true);
  EXPECT_TRUE(Ends([&] { Start(); }));
  EXPECT_EQ(boxes.shown,
            (std::vector<RecordingBoxes::Shown>{
                {"message", "Wumbly", "Another version of Wumbly is already running"}}));
  EXPECT_TRUE(files.Operations().empty());
  EXPECT_EQ(system.instance_questions, 1);
}

TEST_F(TandrelPromptTest, AnOldSystemIsAskedAbout) {
  system.version = 4;
  Start(1);
  EXPECT_EQ(boxes.shown,
            (std::vector<RecordingBoxes::Shown>{
                {"question", "Tandrel",
                 "Tandrel is designed to run on Windows 2000 and Windows XP.\n"
                 "At this time, the game is not guaranteed to run on Windows 95/98/ME.\n"
                 "Contact " +
                     settings.SupportAddress +
                     " with any questions.\n"
                     "Would you like to continue trying to run the game?"}}));
  EXPECT_EQ(InView(), "TandrelPrompt") << "Yes goes on";
}

TEST_F(TandrelPromptTest, NoToAnOldSystemEndsTheProcess) {
  system.version = 4;
  boxes.yes = false;
  files.Record(true);
  EXPECT_TRUE(Ends([&] { Start(); }));
  EXPECT_TRUE(files.Operations().empty());
}

TEST_F(TandrelPromptTest, SystemsFromFiveOnAreNotAskedAbout) {
  system.version = 5;
  Start();
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(TandrelPromptTest, AFirstStartMakesGameModeAsksForTheAgeOnceAndThenPlays) {
  Start();
  EXPECT_EQ(File("GameMode.txt"), "Normal\r\n");
  EXPECT_EQ(files.Paths().size(), 1u);
  EXPECT_EQ(InView(), "TandrelPrompt") << "no crash question";
  PressPicture(1);
  EXPECT_EQ(InView(), "frmDifficultyMenu");
  EXPECT_FALSE(Prompt().visible);
  EXPECT_FALSE(Prompt().enabled);
  EXPECT_EQ(starter.opened, 0);
  host.Press("optHard");
  PressPicture(1);
  EXPECT_EQ(starter.opened, 1);
  EXPECT_EQ(InView(), "(none)");
  EXPECT_EQ(File("DialogMode.txt"), "On\r\n");
  EXPECT_EQ(File("DifficultyLevel.txt"), "Hard\r\n");

  Start();
  PressPicture(1);
  EXPECT_EQ(starter.opened, 2) << "from now on Play goes straight to the game";
  EXPECT_EQ(settings.DifficultyLevel, "Hard");
}

TEST_F(TandrelPromptTest, AClosedAgeQuestionComesAgain) {
  Start();
  PressPicture(1);
  PressPicture(7);
  EXPECT_EQ(InView(), "TandrelPrompt");
  EXPECT_EQ(File("DialogMode.txt"), "(none)");
  PressPicture(1);
  EXPECT_EQ(InView(), "frmDifficultyMenu");
  EXPECT_EQ(starter.opened, 0);
}

TEST_F(TandrelPromptTest, PlaySavesTheOptionsHidesTheFormAndOpensTheWindow) {
  Put("DialogMode.txt", "On\r\n");
  Start();
  settings.GraphicsMode = 16;
  starter.at_opening = [&] {
    EXPECT_FALSE(Prompt().visible);
    EXPECT_FALSE(Prompt().enabled);
    EXPECT_EQ(File("GraphicsMode.txt"), "16\r\n");
    EXPECT_EQ(File("personalize.txt"), "Off\r\n");
    EXPECT_EQ(File("DifficultyLevel.txt"), "Normal\r\n");
    EXPECT_EQ(File("GameRunning.txt"), "(none)") << "the game marks its run itself";
  };
  PressPicture(2);
  EXPECT_EQ(starter.opened, 1);
}

TEST_F(TandrelPromptTest, SafeModeForcesEasyAfterTheOptionsAreSaved) {
  Put("GameMode.txt", "safe\r\n");
  Put("DialogMode.txt", "On\r\n");
  Put("DifficultyLevel.txt", "Hard\r\n");
  Start();
  EXPECT_TRUE(settings.SafeMode);
  EXPECT_EQ(settings.DifficultyLevel, "Hard");
  PressPicture(1);
  EXPECT_EQ(settings.DifficultyLevel, "Easy");
  EXPECT_EQ(File("DifficultyLevel.txt"), "Hard\r\n");
  EXPECT_EQ(File("GameMode.txt"), "safe\r\n") << "safe mode lasts";
}

TEST_F(TandrelPromptTest, WithoutSafeModeTheDifficultyStays) {
  Put("DialogMode.txt", "On\r\n");
  Put("DifficultyLevel.txt", "Hard\r\n");
  Start();
  PressPicture(1);
  EXPECT_EQ(settings.DifficultyLevel, "Hard");
}

TEST_F(TandrelPromptTest, ALoadClearsTheSafeModeOfBefore) {
  settings.SafeMode = true;
  Put("GameMode.txt", "Normal\r\n");
  Start();
  EXPECT_FALSE(settings.SafeMode);
}

TEST_F(TandrelPromptTest, ARunThatDidNotEndAsksForTheSafeMode) {
  Put("GameRunning.txt", "ON\r\n");
  Start();
  EXPECT_EQ(InView(), "frmSafeMode");
  EXPECT_FALSE(Prompt().visible);
  host.Press("optSafe");
  PressPicture(1);
  EXPECT_EQ(InView(), "TandrelPrompt");
  EXPECT_TRUE(settings.SafeMode);
  EXPECT_EQ(File("GameMode.txt"), "Safe\r\n");
  EXPECT_EQ(File("GameRunning.txt"), "ON\r\n") << "the question changes nothing there";

  Start();
  EXPECT_EQ(InView(), "TandrelPrompt") << "safe mode lasts and is not asked about again";
  EXPECT_TRUE(settings.SafeMode);
}

TEST_F(TandrelPromptTest, NormalModeAfterACrashWritesNothing) {
  Put("GameRunning.txt", "On\r\n");
  Start();
  PressPicture(1);
  EXPECT_EQ(InView(), "TandrelPrompt");
  EXPECT_FALSE(settings.SafeMode);
  EXPECT_EQ(File("GameMode.txt"), "Normal\r\n");
  Start();
  EXPECT_EQ(InView(), "frmSafeMode") << "asked again as long as the file says On";
}

TEST_F(TandrelPromptTest, AnotherWordInGameRunningAsksNothing) {
  for (const char* word : {"Off\r\n", "off", "running"}) {
    Put("GameRunning.txt", word);
    Start();
    EXPECT_EQ(InView(), "TandrelPrompt") << word;
    prompt.reset();
  }
}

TEST_F(TandrelPromptTest, EmptyModeFilesAreFatal) {
  Put("GameMode.txt", "");
  EXPECT_THROW(Start(), FatalError);
  Put("GameMode.txt", "Normal");
  Put("GameRunning.txt", "");
  EXPECT_THROW(Start(), FatalError);
}

TEST_F(TandrelPromptTest, InSafeModeGameRunningIsNotRead) {
  Put("GameMode.txt", "Safe");
  Put("GameRunning.txt", "");
  EXPECT_NO_THROW(Start());
  EXPECT_EQ(InView(), "TandrelPrompt");
}

TEST_F(TandrelPromptTest, SettingsFilesAreReadInTheirOrder) {
  for (const char* name : {"Personalize.txt", "DifficultyLevel.txt", "GraphicsMode.txt",
                           "GameMode.txt", "GameRunning.txt"}) {
    Put(name, "Off");
  }
  files.Record(true);
  Start();
  Strings read;
  for (const auto& operation : files.Operations()) {
    if (operation.name == "read") read.push_back(operation.path);
  }
  EXPECT_EQ(read, (Strings{"/clinic\\Personalize.txt", "/clinic\\DifficultyLevel.txt",
                           "/clinic\\GraphicsMode.txt", "/clinic\\GameMode.txt",
                           "/clinic\\GameRunning.txt"}));
  EXPECT_TRUE(Written().empty());
}

TEST_F(TandrelPromptTest, OptionsAreSavedInTheirOrder) {
  Start();
  files.Record(true);
  prompt->SaveOptions();
  EXPECT_EQ(Written(), (Strings{"/clinic\\personalize.txt", "/clinic\\GraphicsMode.txt",
                                "/clinic\\DifficultyLevel.txt"}));
}

TEST_F(TandrelPromptTest, OptionsTakeThePlaceOfTheFormAndShowTheSettings) {
  for (int index : {5, 6}) {
    Put("DifficultyLevel.txt", "Easy");
    Put("GraphicsMode.txt", "16");
    Put("Personalize.txt", "On");
    Start();
    PressPicture(index);
    EXPECT_EQ(InView(), "frmOptionsMenu");
    EXPECT_FALSE(Prompt().visible);
    Form& options = *host.InView();
    EXPECT_EQ(ValueOf(options, "optEasy"), 1);
    EXPECT_EQ(ValueOf(options, "opt16Bit"), 1);
    EXPECT_EQ(ValueOf(options, "optOn"), 1);
    prompt.reset();
  }
}

TEST_F(TandrelPromptTest, OptionsReachTheirFilesWhenTheFormGoesOn) {
  Put("DialogMode.txt", "On\r\n");
  Start();
  PressPicture(5);
  host.Press("optHard");
  host.Press("opt16Bit");
  host.Press("optOn");
  PressPicture(1);
  EXPECT_EQ(InView(), "TandrelPrompt");
  EXPECT_EQ(File("DifficultyLevel.txt"), "(none)") << "OK alone writes no file";
  PressPicture(1);
  EXPECT_EQ(File("DifficultyLevel.txt"), "Hard\r\n");
  EXPECT_EQ(File("GraphicsMode.txt"), "16\r\n");
  EXPECT_EQ(File("personalize.txt"), "On\r\n");
  EXPECT_EQ(settings.GraphicsMode, 16) << "in force for the graphics that start now";
}

TEST_F(TandrelPromptTest, DialogsAreMadeOnceAndStay) {
  Start();
  PressPicture(5);
  Form* options = host.InView();
  PressPicture(7);
  PressPicture(5);
  EXPECT_EQ(host.InView(), options);
  PressPicture(7);
  PressPicture(1);
  Form* difficulty = host.InView();
  PressPicture(7);
  PressPicture(1);
  EXPECT_EQ(host.InView(), difficulty);
  EXPECT_EQ(host.Forms().size(), 3u) << "frmSafeMode is made only after a crash";
}

TEST_F(TandrelPromptTest, LeavingFromTheFormKeepsTheOptions) {
  for (int way : {11, 12, 0, -1, -2, -3}) {
    for (const std::string& path : files.Paths()) files.Remove(path);
    Start();
    settings.DifficultyLevel = "Hard";
    settings.PersonalizeOn = true;
    settings.GraphicsMode = 16;
    EXPECT_TRUE(Ends([&] {
      if (way > 0) PressPicture(way);
      if (way == 0) host.Close();
      if (way == -1) host.Key(FormKey::kEscape);
      if (way == -2) prompt->Unload();
      if (way == -3) host.EndProgram();
    })) << way;
    EXPECT_EQ(File("DifficultyLevel.txt"), "Hard\r\n") << way;
    EXPECT_EQ(File("personalize.txt"), "On\r\n") << way;
    EXPECT_EQ(File("GraphicsMode.txt"), "16\r\n") << way;
    EXPECT_EQ(File("GameRunning.txt"), "(none)") << way;
    EXPECT_EQ(starter.opened, 0);
    prompt.reset();
  }
}

TEST_F(TandrelPromptTest, ASystemThatEndsTheProgramEndsItFromEveryDialog) {
  Put("GameRunning.txt", "On");
  Start();
  ASSERT_EQ(InView(), "frmSafeMode");
  settings.DifficultyLevel = "Hard";
  EXPECT_TRUE(Ends([&] { host.EndProgram(); }));
  EXPECT_EQ(File("DifficultyLevel.txt"), "Hard\r\n");
  EXPECT_EQ(File("GameRunning.txt"), "On") << "the question comes again";
  EXPECT_FALSE(settings.SafeMode);
  PressPicture(1);
  for (int index : {1, 5}) {
    PressPicture(index);
    ASSERT_NE(InView(), "TandrelPrompt");
    EXPECT_TRUE(Ends([&] { host.EndProgram(); })) << index;
    PressPicture(7);
  }
  EXPECT_EQ(File("DialogMode.txt"), "(none)") << "the child's age is still to be asked";
  EXPECT_EQ(starter.opened, 0);
}

TEST_F(TandrelPromptTest, MinimiseBeepAndLinkEvenLikeOdd) {
  Start();
  for (int index : {7, 8}) {
    PressPicture(index);
    EXPECT_EQ(Prompt().window_state, WindowState::kMinimised) << index;
    host.OverForm();
  }
  for (int index : {9, 10}) PressPicture(index);
  EXPECT_EQ(system.beeps, 2);
  EXPECT_EQ(Prompt().window_state, WindowState::kNormal) << "it can't be maximised";
  for (int index : {13, 14}) PressPicture(index);
  EXPECT_EQ(system.opened, (Strings{settings.WebAddress, settings.WebAddress}));
  EXPECT_EQ(InView(), "TandrelPrompt");
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(TandrelPromptTest, PersonalizeOpensTheFirstStageOfTheWizardAndItComesBackHere) {
  Start();
  for (int index : {3, 4}) {
    PressPicture(index);
    EXPECT_EQ(InView(), "frmSelectPicture") << index;
    EXPECT_FALSE(Prompt().visible);
    PressPicture(1);
    EXPECT_EQ(InView(), "TandrelPrompt") << index;
  }
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(TandrelPromptTest, LabelsLightUpAndOpenPageAndMail) {
  Start();
  host.Over("Label2");
  EXPECT_TRUE(Prompt().Find("Label2")->hover);
  host.Over("Label3");
  EXPECT_FALSE(Prompt().Find("Label2")->hover);
  EXPECT_TRUE(Prompt().Find("Label3")->hover);
  host.Over("Label2");
  EXPECT_FALSE(Prompt().Find("Label3")->hover);
  host.OverForm();
  EXPECT_FALSE(Prompt().Find("Label2")->hover);
  host.Press("Label2");
  host.Press("Label3");
  EXPECT_EQ(system.opened, (Strings{settings.WebAddress, "mailto:" + settings.SupportAddress}));
}

TEST_F(TandrelPromptTest, HighlightsFollowThePointer) {
  Start();
  host.Over("Picture1", 13);
  EXPECT_EQ(SeenPictures(Prompt()),
            "play personalize options link-highlight minimise maximise close");
  host.Over("Picture1", 14);
  EXPECT_EQ(SeenPictures(Prompt()),
            "play personalize options link-highlight minimise maximise close");
  host.Over("Picture1", 1);
  EXPECT_EQ(SeenPictures(Prompt()),
            "play-highlight personalize options link minimise maximise close");
  host.OverForm();
  EXPECT_EQ(SeenPictures(Prompt()), "play personalize options link minimise maximise close");
}

TEST_F(TandrelPromptTest, SetButtonHighlightIgnoresEvenIndexesAndZero) {
  Start();
  const std::string lit = "play personalize-highlight options link minimise maximise close";
  prompt->SetButtonHighlight(3);
  EXPECT_EQ(SeenPictures(Prompt()), lit);
  for (std::int16_t even : {0, 2, 4, 14, -2}) {
    prompt->SetButtonHighlight(even);
    EXPECT_EQ(SeenPictures(Prompt()), lit) << even;
  }
  prompt->SetButtonHighlight(-3);
  EXPECT_EQ(SeenPictures(Prompt()), "play personalize options link minimise maximise close");
  prompt->SetButtonHighlight(3);
  prompt->SetButtonHighlight(-1);
  EXPECT_EQ(SeenPictures(Prompt()), "play personalize options link minimise maximise close");
}

TEST_F(TandrelPromptTest, EnterIsPlay) {
  Put("DialogMode.txt", "On\r\n");
  Start();
  host.Key(FormKey::kEnter);
  EXPECT_EQ(starter.opened, 1);
}

TEST_F(TandrelPromptTest, TabBeginsAtPlayAndReachesEveryButtonAndLink) {
  Start();
  Strings walk;
  for (int i = 0; i < 10; ++i) {
    host.Key(FormKey::kTab);
    walk.push_back(FocusName(Prompt()));
  }
  EXPECT_EQ(walk, (Strings{"play-highlight", "personalize-highlight", "options-highlight",
                           "link-highlight", "Label2", "Label3", "minimise-highlight",
                           "maximise-highlight", "close-highlight", "play-highlight"}));
}

TEST_F(TandrelPromptTest, TwoLaunchesInOneProcessDontKnowEachOther) {
  LaunchBench other;
  other.Put("DifficultyLevel.txt", "Hard");
  Start(1);
  other.Start(2);
  PressPicture(5);
  EXPECT_EQ(InView(), "frmOptionsMenu");
  EXPECT_EQ(other.InView(), "TandrelPrompt");
  EXPECT_EQ(settings.ProductName, "Tandrel");
  EXPECT_EQ(other.settings.ProductName, "Wumbly");
  EXPECT_EQ(settings.DifficultyLevel, "normal");
  EXPECT_EQ(other.settings.DifficultyLevel, "Hard");
}

}  // namespace
}  // namespace quendle
