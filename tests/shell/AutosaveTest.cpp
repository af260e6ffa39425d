// "autosave.txt": when it is written, removed, loaded, and set aside.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/AutosaveFiles.h"
#include "shell/GameBench.h"

namespace quendle {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using Status = Application::Status;

constexpr const char* kNone = "(none)";

// A saved game in which the dog of the room is in that state.
std::string SavedDog(const std::string& state) {
  return "begin\r\nbegin\r\ndogroom\r\ndefault\r\n0\r\n0\r\nTrue\r\nbegin\r\ndog\r\n" + state +
         "\r\n300\r\n300\r\nTrue\r\nend\r\nend\r\nend\r\n";
}

struct AutosaveBench : testing::Test, GameBench {
  std::string Text() { return File("\\autosave.txt"); }
  // The state of the dog that this run has loaded.
  std::string Dog() {
    Send("cs_dogroom");
    return Child(Logic()->CurrentScreen(), "dog")->CurrentState();
  }
  void LastRunCrashed() { files.Put("\\GameRunning.txt", "On\r\n"); }
};

using Autosave = AutosaveBench;

// --- Writing.

TEST_F(Autosave, ItIsWrittenAfterAChangeOfScreen) {
  Play();
  EXPECT_EQ(Text(), kNone);
  Send("cs_floor1hall1");
  EXPECT_THAT(Text(), HasSubstr("floor1hall1"));
  Send("cs_credits");
  files.Remove("C:\\game\\autosave.txt");
  Send("screenprevious");
  EXPECT_THAT(Text(), HasSubstr("credits"));
}

TEST_F(Autosave, ItIsWrittenWhenTheFocusIsLost) {
  Play();
  Focus(false);
  EXPECT_THAT(Text(), HasSubstr("introscreen"));
  files.Remove("C:\\game\\autosave.txt");
  Focus(true);
  EXPECT_EQ(Text(), kNone);
}

TEST_F(Autosave, ItIsWrittenOnceAMinute) {
  Play();
  Tick(59'900);
  EXPECT_EQ(Text(), kNone);
  Tick(200);
  EXPECT_NE(Text(), kNone);
  files.Remove("C:\\game\\autosave.txt");
  Tick(59'500);
  EXPECT_EQ(Text(), kNone);
  Tick(600);
  EXPECT_NE(Text(), kNone);
}

TEST_F(Autosave, ItLeavesOutWhatTheSavedGameLeavesOut) {
  Play();
  Send("cs_tutorial1");
  Send("cs_floor1hall1");
  EXPECT_THAT(Text(), Not(HasSubstr("cursors")));
  EXPECT_THAT(Text(), Not(HasSubstr("tutorial")));
}

TEST_F(Autosave, OneThatCannotBeWrittenIsLoggedAndPlayGoesOn) {
  Play();
  faults.Plan("rename", 0, 1, false);
  EXPECT_EQ(Send("cs_floor1hall1"), Status::kRunning);
  EXPECT_EQ(Text(), kNone);
  EXPECT_THAT(File("\\general.txt"), HasSubstr("autosave"));
}

// --- Removing.

TEST_F(Autosave, ItIsGoneAfterAnOrderlyEnd) {
  Play();
  Send("cs_floor1hall1");
  Close();
  EXPECT_EQ(Text(), kNone);
}

TEST_F(Autosave, AResetRemovesItAndNoneIsWrittenAnyMore) {
  Play();
  Send("cs_floor1hall1");
  Send("resetgame");
  EXPECT_EQ(Text(), kNone);
  Send("cs_dogroom");
  Focus(false);
  Focus(true);
  Tick(61'000);
  EXPECT_EQ(Text(), kNone);
}

TEST_F(Autosave, TheResetOfTheOptionsRemovesIt) {
  files.Put("\\userdata.txt", SavedDog("won"));
  files.Put("\\autosave.txt", SavedDog("won"));
  application.Start();
  Press(5);
  ASSERT_NE(backend.forms.InView(), nullptr);
  ASSERT_EQ(backend.forms.InView()->name, "frmOptionsMenu");
  Do([&] { backend.forms.Set("chkResetGame", 0, 1); });
  Do([&] { backend.forms.Press("Picture1", 1); });
  EXPECT_EQ(File("\\userdata.txt"), kNone);
  EXPECT_EQ(Text(), kNone);
}

// --- Loading.

TEST_F(Autosave, AfterACrashItIsWhatTheGameLoads) {
  files.Put("\\GameMode.txt", "Safe\n");  // no question on the way
  LastRunCrashed();
  files.Put("\\userdata.txt", SavedDog("lost"));
  files.Put("\\autosave.txt", SavedDog("won"));
  ASSERT_EQ(Play(), Status::kRunning) << application.Fault().box_text;
  EXPECT_EQ(Dog(), "won");
}

TEST_F(Autosave, AfterAnOrderlyEndTheSavedGameIsLoaded) {
  for (const char* mark : {"Off\r\n", ""}) {
    GameBench bench;
    if (*mark != '\0') bench.files.Put("\\GameRunning.txt", mark);
    bench.files.Put("\\userdata.txt", SavedDog("lost"));
    bench.files.Put("\\autosave.txt", SavedDog("won"));
    ASSERT_EQ(bench.Play(), Status::kRunning);
    bench.Send("cs_dogroom");
    EXPECT_EQ(Child(bench.Logic()->CurrentScreen(), "dog")->CurrentState(), "lost");
  }
}

TEST_F(Autosave, AfterACrashWithoutOneTheSavedGameIsLoaded) {
  files.Put("\\GameMode.txt", "Safe\n");
  LastRunCrashed();
  files.Put("\\userdata.txt", SavedDog("lost"));
  Play();
  EXPECT_EQ(Dog(), "lost");
}

TEST_F(Autosave, ACrashSoonAfterARecoveredStartLosesNothingThatWasRecovered) {
  files.Put("\\GameMode.txt", "Safe\n");
  LastRunCrashed();
  files.Put("\\userdata.txt", SavedDog("lost"));
  files.Put("\\autosave.txt", SavedDog("won"));
  Play();
  GameBench next;  // the run dies here, before its first change of screen
  next.files = files;
  ASSERT_EQ(next.Play(), Status::kRunning);
  next.Send("cs_dogroom");
  EXPECT_EQ(Child(next.Logic()->CurrentScreen(), "dog")->CurrentState(), "won");
}

TEST_F(Autosave, OneThatWasRecoveredIsKeptAsideWhenNoNewOneCanBeWritten) {
  files.Put("\\GameMode.txt", "Safe\n");
  LastRunCrashed();
  files.Put("\\autosave.txt", SavedDog("won"));
  application.Start();
  // Written on the way: three options, the mark, eight scripts, the log, the copy; then the disk is
  // full.
  faults.Plan("rename", 14, 0, false);
  EXPECT_EQ(Press(1), Status::kRunning) << application.Fault().box_text;
  EXPECT_EQ(Text(), kNone);
  EXPECT_EQ(File("\\autosave-tried.txt"), SavedDog("won"));
}

TEST_F(Autosave, OneThatAStartHasFailedOnIsSetAsideAndNotTriedAgain) {
  files.Put("\\GameMode.txt", "Safe\n");
  LastRunCrashed();
  files.Put("\\userdata.txt", SavedDog("lost"));
  files.Put("\\autosave.txt", "begin\nbegin\nbroken\n");
  EXPECT_EQ(Play(), Status::kFailed);
  EXPECT_EQ(Text(), kNone);

  GameBench next;
  next.files = files;
  ASSERT_EQ(next.Play(), Status::kRunning) << next.application.Fault().box_text;
  next.Send("cs_dogroom");
  EXPECT_EQ(Child(next.Logic()->CurrentScreen(), "dog")->CurrentState(), "lost");
}

TEST_F(Autosave, AStartThatDiesWhileItTriesOneDoesNotTryItTwice) {
  files.Put("\\GameMode.txt", "Safe\n");
  LastRunCrashed();
  files.Put("\\autosave.txt", SavedDog("won"));
  files.Remove("C:\\game\\Info\\introscreen\\data.txt");
  EXPECT_EQ(Play(), Status::kFailed);
  EXPECT_EQ(Text(), kNone);
}

TEST_F(Autosave, TheChoiceNeedsACrashAndAFile) {
  application.Start();
  const AutosaveFiles choice(application.Content());
  EXPECT_EQ(choice.ChooseSavedGame(false), "userdata.txt");
  files.Put("\\autosave.txt", "text");
  EXPECT_EQ(choice.ChooseSavedGame(true), "userdata.txt");
  EXPECT_EQ(Text(), "text");
  const std::string aside = choice.ChooseSavedGame(false);
  EXPECT_EQ(File("\\" + aside), "text");
  EXPECT_EQ(Text(), kNone);
  choice.ForgetSetAside();
  EXPECT_EQ(File("\\" + aside), kNone);
}

}  // namespace
}  // namespace quendle
