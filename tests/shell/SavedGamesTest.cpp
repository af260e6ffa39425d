// "autosave.txt": when it is written, removed, loaded, and given up. The kept saves.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/RunCopies.h"
#include "shell/SavedGames.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Status = Application::Status;

constexpr const char* kNone = "(none)";

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

// An orderly end removes it after it has saved: one that is there is newer, whatever the mark says.
TEST_F(Autosave, OneThatIsThereIsNewerThanTheSavedGame) {
  for (const char* mark : {"Off\r\n", "On\r\n", ""}) {
    MemoryFileSystem disk(kBase);
    if (*mark != '\0') disk.Put("\\GameRunning.txt", mark);
    disk.Put("\\userdata.txt", SavedDog("lost"));
    disk.Put("\\autosave.txt", SavedDog("won"));
    EXPECT_EQ(DogRemembered(disk), "won") << mark;
    EXPECT_EQ(DogRemembered(disk, true), "won") << mark;
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

TEST_F(Autosave, OneThatCannotBeReadIsSetAsideAndTheFamilyIsTold) {
  LastRunCrashed();
  files.Put("\\GameMode.txt", "Safe\n");
  files.Put("\\userdata.txt", SavedDog("lost"));
  for (const char* damaged : {"", "begin\nbegin\nbroken\n", "\x01\xFF", "begin\r\nbegin\r\ndog"}) {
    NextRun run(files);
    run.files.Put("\\autosave.txt", damaged);
    ASSERT_EQ(run.Play(), Status::kRunning) << run.application.Fault().box_text;
    EXPECT_THAT(run.Boxes(), ElementsAre(HasSubstr("The end of the last game could not be read")));
    EXPECT_THAT(run.File("\\general.txt"), HasSubstr("autosave.txt"));
    EXPECT_EQ(run.File("\\autosave.txt"), kNone);
    EXPECT_EQ(run.File("\\autosave-damaged.txt"), damaged);
    EXPECT_EQ(run.Dog(), "lost");
  }
}

TEST_F(Autosave, AStartThatFailsForAnotherReasonLeavesIt) {
  LastRunCrashed();
  files.Put("\\userdata.txt", SavedDog("lost"));
  files.Put("\\autosave.txt", SavedDog("won"));
  NextRun run(files);
  run.files.Remove("C:\\game\\Info\\introscreen\\data.txt");
  EXPECT_EQ(run.Play(), Status::kFailed);
  EXPECT_EQ(DogRemembered(run.files), "won");
}

TEST_F(Autosave, OneThatTwoStartsFailOnIsGivenUpOnceAStartWithoutItGoesWell) {
  const std::string saved = SavedDog("lost");
  files.Put("\\autosave.txt", saved);
  files.Put("\\userdata.txt", SavedDog("won"));
  MemoryFileSystem disk = files;
  for (int start = 1; start <= 2; ++start) {
    NextRun run(disk);
    run.files.Remove("C:\\game\\Info\\tools\\data.txt");  // in its place: what the state can't do
    EXPECT_EQ(run.Play(), Status::kFailed);
    EXPECT_EQ(run.File("\\autosave.txt"), saved) << start;
    disk = run.files;
  }
  NextRun third(disk);
  ASSERT_EQ(third.Play(), Status::kRunning);
  EXPECT_THAT(third.Boxes(), ElementsAre(HasSubstr("The end of the last game")));
  EXPECT_EQ(third.File("\\autosave.txt"), kNone);
  EXPECT_EQ(third.File("\\autosave-damaged.txt"), saved);
  EXPECT_EQ(third.File("\\autosave-tried.txt"), kNone);
  EXPECT_EQ(third.Dog(), "won");
}

TEST_F(Autosave, AStartWithoutItThatFailsAsWellAcquitsIt) {
  files.Put("\\userdata.txt", SavedDog("lost"));
  files.Put("\\autosave.txt", SavedDog("won"));
  MemoryFileSystem disk = files;
  for (int start = 1; start <= 3; ++start) {
    NextRun run(disk);
    run.files.Remove("C:\\game\\Info\\introscreen\\data.txt");
    EXPECT_EQ(run.Play(), Status::kFailed);
    disk = run.files;
  }
  EXPECT_FALSE(disk.Get("\\autosave-tried.txt"));
  EXPECT_EQ(DogRemembered(disk), "won");
}

TEST_F(Autosave, StartsThatFailOnDifferentFaultsLeaveIt) {
  files.Put("\\userdata.txt", SavedDog("lost"));
  files.Put("\\autosave.txt", SavedDog("won"));
  MemoryFileSystem disk = files;
  for (const char* missing : {"introscreen", "tools", "introscreen", "tools"}) {
    NextRun run(disk);
    run.files.Remove(std::string("C:\\game\\Info\\") + missing + "\\data.txt");
    EXPECT_EQ(run.Play(), Status::kFailed);
    disk = run.files;
  }
  EXPECT_EQ(DogRemembered(disk), "won");
}

TEST_F(Autosave, OneThatCannotBeOpenedStopsTheStartAndStays) {
  files.Put("\\userdata.txt", SavedDog("lost"));
  for (const char* name : {"autosave.txt", "userdata.txt", "GameRunning.txt"}) {
    NextRun run(files);
    run.files.Put("\\GameMode.txt", "Normal\r\n");
    run.files.Put(std::string("\\") + name, SavedDog("won"));
    run.files.Record(true);
    run.faults.Watch([&](std::string_view operation) {
      const bool it = operation == "read" && run.files.Operations().back().path.ends_with(name);
      return it ? Faults::Kind::kFail : Faults::Kind::kNone;
    });
    EXPECT_EQ(run.Play(), Status::kFailed) << name;
    EXPECT_THAT(run.Boxes(), ElementsAre(HasSubstr(std::string("The file ") + name)));
    EXPECT_EQ(run.File(std::string("\\") + name), SavedDog("won"));
  }
}

TEST_F(Autosave, OneThatCannotBeRemovedIsNoFaultAndHoldsWhatWasSaved) {
  Play();
  Send("cs_floor1hall1");
  faults.Plan("remove", 0, 0, false);
  EXPECT_EQ(Close(), Status::kEnded);
  EXPECT_EQ(Text(), File("\\userdata.txt"));
  EXPECT_THAT(File("\\general.txt"), HasSubstr("autosave.txt can't be deleted"));
}

// --- The last three good saves.

struct KeptSavesBench : testing::Test {
  KeptSavesBench() : disk(kBase) {}
  // A whole run that ends in order; what it leaves is the disk of the next.
  void Run(const std::string& dog, bool forgiving = true) {
    NextRun run(disk, forgiving);
    ASSERT_EQ(run.Play(), Status::kRunning) << run.application.Fault().box_text;
    run.Send("cs_dogroom");
    Child(run.Logic()->CurrentScreen(), "dog")->ProcessState(dog);
    run.Close();
    disk = run.files;
  }
  std::string Dog(const std::string& file) const {
    const std::string text = disk.Get("\\" + file).value_or("\r\ndog\r\nnone\r\n");
    const std::size_t at = text.find("\r\ndog\r\n") + 7;
    return text.substr(at, text.find("\r\n", at) - at);
  }

  MemoryFileSystem disk;
};

using KeptSaves = KeptSavesBench;

TEST_F(KeptSaves, TheLastThreeAreKeptTheNewestFirst) {
  for (const char* dog : {"won", "lost", "default", "won"}) Run(dog);
  EXPECT_EQ(Dog("userdata.txt"), "won");
  EXPECT_EQ(Dog("userdata.txt.1"), "won");
  EXPECT_EQ(Dog("userdata.txt.2"), "default");
  EXPECT_EQ(Dog("userdata.txt.3"), "lost");
  EXPECT_FALSE(disk.Get("\\userdata.txt.4"));
}

TEST_F(KeptSaves, ADamagedSavedGameGivesWayToTheNewestThatCanBeRead) {
  for (const char* dog : {"default", "lost", "won"}) Run(dog);
  for (const char* damaged : {"", "\x01\xFF", "begin\r\nbegin\r\ndogroom\r\n"}) {
    MemoryFileSystem left = disk;
    left.Put("\\userdata.txt", damaged);
    left.Put("\\userdata.txt.1", "damaged as well");
    NextRun run(left, true);
    ASSERT_EQ(run.Play(), Status::kRunning);
    EXPECT_THAT(run.Boxes(), ElementsAre(HasSubstr("The saved game could not be read")));
    EXPECT_EQ(run.File("\\userdata-damaged.txt"), damaged);
    EXPECT_EQ(run.Dog(), "lost");
    NextRun after(run.files, true);
    after.files.Remove("C:\\game\\autosave.txt");
    ASSERT_EQ(after.Play(), Status::kRunning);
    EXPECT_THAT(after.Boxes(), IsEmpty()) << "it is told once";
    EXPECT_EQ(after.Dog(), "lost");
  }
}

TEST_F(KeptSaves, WithoutOneTheFaultStaysWhatItIs) {
  disk.Put("\\userdata.txt", "begin\nbegin\nhall\ndefault\nx\n0\nTrue\nend\nend\n");
  NextRun run(disk, true);
  EXPECT_EQ(run.Play(), Status::kFailed);
  EXPECT_THAT(run.Boxes(), ElementsAre(testing::StartsWith("userdata.txt:5: ")));
}

TEST_F(KeptSaves, OnlyTheForgivingKeepAndUseThem) {
  Run("won", false);
  EXPECT_FALSE(disk.Get("\\userdata.txt.1"));
  Run("won", true);
  disk.Put("\\userdata.txt", "damaged");
  NextRun strict(disk, false);
  EXPECT_EQ(strict.Play(), Status::kFailed);
  EXPECT_EQ(strict.File("\\userdata.txt"), "damaged");
}

TEST_F(KeptSaves, WhatARecoveringStartHasLoadedIsKeptToo) {
  disk.Put("\\autosave.txt", SavedDog("won"));
  NextRun run(disk, true);
  run.Play();
  run.files.Put("\\autosave.txt", "damaged");  // and the process dies
  EXPECT_EQ(DogRemembered(run.files, true), "won");
}

TEST_F(KeptSaves, TheNewestOfThemTakesThePlaceOfAnAutosaveOnTrial) {
  disk.Put("\\userdata.txt.1", SavedDog("won"));
  disk.Put("\\autosave.txt", SavedDog("lost"));
  for (int start = 1; start <= 2; ++start) {
    NextRun run(disk, true);
    run.files.Remove("C:\\game\\Info\\tools\\data.txt");
    EXPECT_EQ(run.Play(), Status::kFailed);
    disk = run.files;
  }
  NextRun third(disk, true);
  ASSERT_EQ(third.Play(), Status::kRunning);
  EXPECT_EQ(third.Dog(), "won");
}

TEST_F(KeptSaves, AStartFromOneOfThemOutlivesAQuickStop) {
  disk.Put("\\userdata.txt", SavedDog("lost"));
  disk.Put("\\userdata.txt.1", SavedDog("won"));
  disk.Put("\\autosave.txt", "damaged");
  NextRun run(disk, true);
  ASSERT_EQ(run.Play(), Status::kRunning);
  // The run dies here, before its first change of screen.
  EXPECT_EQ(DogRemembered(run.files, true), "won");
}

TEST_F(KeptSaves, AMissingSavedGameIsANewGameWhateverIsKept) {
  Run("won");
  NextRun run(disk, true);
  run.files.Remove("C:\\game\\userdata.txt");
  run.Play();
  EXPECT_EQ(run.Dog(), "default");
}

TEST_F(KeptSaves, AResetForgetsThem) {
  Run("won");
  NextRun run(disk, true);
  run.Play();
  run.Send("resetgame");
  run.Close();
  EXPECT_FALSE(run.files.Get("\\userdata.txt.1"));
  EXPECT_FALSE(run.files.Get("\\userdata.txt"));
}

}  // namespace
}  // namespace quendle
