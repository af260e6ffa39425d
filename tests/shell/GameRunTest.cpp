// A game run from the window's load to the orderly end.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "base/EventSink.h"
#include "diagnostics/TestingObject.h"
#include "shell/GameBench.h"

namespace quendle {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Status = Application::Status;

struct RunBench : testing::Test, GameBench {
  // The position of the first operation of that name on that path; -1 without one.
  long At(const std::string& name, const std::string& path) const {
    const auto& operations = files.Operations();
    for (std::size_t i = 0; i < operations.size(); ++i) {
      if (operations[i].name == name && EqualsNoCase(operations[i].path, kBase + path)) {
        return static_cast<long>(i);
      }
    }
    return -1;
  }
};

using GameRun = RunBench;

TEST_F(GameRun, PlayOpensTheWindowAndTheFirstScreen) {
  ASSERT_EQ(Play(), Status::kRunning) << application.Fault().box_text;
  EXPECT_TRUE(backend.window.IsOpen());
  EXPECT_EQ(backend.window.Caption(), "Wumbly");
  EXPECT_FALSE(backend.window.PointerVisible());
  EXPECT_EQ(backend.forms.InView(), nullptr);
  EXPECT_EQ(Current(), "introscreen");
  EXPECT_TRUE(World().GameActive);
  EXPECT_FALSE(World().ReleasingGlobals);
  EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(GameRun, TheSiblingEditionHasItsOwnNameAndTables) {
  GameBench sibling(1);
  ASSERT_EQ(sibling.Play(), Status::kRunning);
  EXPECT_EQ(sibling.backend.window.Caption(), "Tandrel");
  EXPECT_NE(sibling.File("\\Info\\GlobalReferences\\scripts\\soapPatientIllnessState.txt"),
            "(none)");
  EXPECT_EQ(sibling.File("\\Info\\GlobalReferences\\scripts\\GrapesPatientIllnessState.txt"),
            "(none)");
}

TEST_F(GameRun, AStartReadsAndWritesItsFilesInTheirOrder) {
  application.Start();
  files.Record(true);
  Press(1);
  files.Record(false);
  std::vector<long> order = {
      At("write", "\\personalize.txt"),
      At("write", "\\GameRunning.txt"),
      At("write", "\\Info\\GlobalReferences\\scripts\\antiseptantPatientIllnessState.txt"),
      At("write",
         "\\Info\\GlobalReferences\\scripts\\AntibioticPatientSecondToLastIllnessState"
         ".txt"),
      At("create", "\\general.txt"),
      At("read", "\\Info\\globalsoundstates.txt"),
      At("read", "\\Info\\globalscriptstates.txt"),
      At("read", "\\Info\\globalgameobjects.txt"),
      At("read", "\\autosave.txt"),
      At("read", "\\Info\\screens.txt"),
      At("read", "\\HelpSys.txt"),
      At("read", "\\userdata.txt"),
      At("read", "\\Info\\introscreen\\data.txt"),
      At("exists", "\\info\\doodle.wma"),
      At("read", "\\Info\\tools\\data.txt"),
      At("read", "\\Info\\cursors\\data.txt")};
  for (long position : order) EXPECT_GE(position, 0);
  EXPECT_TRUE(std::ranges::is_sorted(order)) << testing::PrintToString(order);
  EXPECT_EQ(File("\\GameRunning.txt"), "On\r\n");
  EXPECT_EQ(File("\\general.txt"), "");
}

TEST_F(GameRun, AnOrderlyEndMarksItselfBeforeItSaves) {
  Play();
  Send("cs_floor1hall1");
  files.Record(true);
  EXPECT_EQ(Close(), Status::kEnded);
  EXPECT_THAT(Changes(),
              ElementsAre("write \\GameRunning.txt", "write \\autosave.txt", "write \\userdata.txt",
                          "write \\HelpSys.txt", "remove \\autosave.txt"));
  EXPECT_EQ(File("\\GameRunning.txt"), "Off\r\n");
  EXPECT_THAT(File("\\userdata.txt"), testing::StartsWith("begin\r\nbegin\r\n"));
  EXPECT_EQ(File("\\HelpSys.txt"), "True\r\nFalse\r\nFalse\r\nFalse\r\nFalse\r\n");
  EXPECT_TRUE(backend.window.PointerVisible());
  EXPECT_FALSE(backend.window.IsOpen());
  EXPECT_TRUE(backend.timers.Running().empty());
  EXPECT_EQ(application.Game()->GameLogic, nullptr);
  EXPECT_EQ(application.Game()->EventLog, nullptr);
  EXPECT_TRUE(World().GlobalObjects.Empty());
  EXPECT_TRUE(World().TimedObjects.Empty());
  EXPECT_EQ(application.Game()->media.primary_surface, nullptr);
  EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(GameRun, SharedObjectsAreReleasedAtTheEndAndNotBefore) {
  Play();
  ObjectRef hand = World().FindGlobalObject("HANDCURSOR");
  ASSERT_NE(hand, nullptr);
  EXPECT_TRUE(World().GlobalObjectExists("handcursor"));
  World().ReleasingGlobals = true;
  EXPECT_FALSE(World().GlobalObjectExists("handcursor"));
  World().ReleasingGlobals = false;
  hand->Release(false);
  EXPECT_EQ(hand->CurrentState(), "default");
  Close();
  EXPECT_EQ(hand->CurrentState(), "");
}

TEST_F(GameRun, TheIllnessScriptsFollowTheDifficulty) {
  const std::string active = "\\Info\\GlobalReferences\\scripts\\GrapesPatientIllnessState.txt";
  for (const auto& [level, text] : {std::pair{"Easy", "begin\nchange safe\nend\n"},
                                    std::pair{"hard", "begin\nchange normal\nend\n"},
                                    std::pair{"odd", "begin\nchange normal\nend\n"}}) {
    GameBench bench;
    bench.files.Put("\\DifficultyLevel.txt", level);
    bench.Play();
    EXPECT_EQ(bench.File(active), text) << level;
  }
}

TEST_F(GameRun, SafeModeForcesEasyBehindTheFilesBack) {
  files.Put("\\GameMode.txt", "SAFE\n");
  files.Put("\\DifficultyLevel.txt", "Hard\n");
  Play();
  EXPECT_EQ(application.GetSettings().DifficultyLevel, "Easy");
  EXPECT_FALSE(application.GetSettings().FullIllnessScripts);
  EXPECT_EQ(File("\\DifficultyLevel.txt"), "Hard\r\n");
}

TEST_F(GameRun, TheSecondRunRemembersTheFirst) {
  Play();
  Send("cs_floor1hall1");
  Send("toscreen_tools_addglobalobj_bandaidtool");
  Close();
  GameBench next;
  next.files = files;
  ASSERT_EQ(next.Play(), Status::kRunning) << next.application.Fault().box_text;
  EXPECT_THAT(ChildNames(next.Logic()->ToolsScreen()), Contains("bandaidtool"));
  EXPECT_TRUE(next.Logic()->Help().m_bHelpMedicalBook);
}

TEST_F(GameRun, ClosingTheStartUpFormSavesTheOptionsAndEndsWithoutAGame) {
  application.Start();
  files.Record(true);
  EXPECT_EQ(Do([&] { backend.forms.Close(); }), Status::kEnded);
  EXPECT_THAT(Changes(), ElementsAre("write \\personalize.txt", "write \\GraphicsMode.txt",
                                     "write \\DifficultyLevel.txt"));
  EXPECT_EQ(application.Game(), nullptr);
}

TEST_F(GameRun, AnEmptyModeOrRunningFileIsFatalAtTheStart) {
  for (const char* name : {"GameMode.txt", "GameRunning.txt"}) {
    GameBench bench;
    bench.files.Put(std::string("\\") + name, "");
    EXPECT_EQ(bench.application.Start(), Status::kFailed) << name;
    ASSERT_EQ(bench.Boxes().size(), 1u);
    EXPECT_THAT(bench.Boxes()[0], HasSubstr(name));
    EXPECT_EQ(bench.backend.boxes.Shown()[0].title, "Wumbly");
  }
}

TEST_F(GameRun, SomeFilesOfTheContentMustBeThere) {
  for (const char* path :
       {"\\Info\\globalsoundstates.txt", "\\Info\\globalscriptstates.txt",
        "\\Info\\globalgameobjects.txt", "\\Info\\screens.txt",
        "\\Info\\GlobalReferences\\scripts\\GrapesPatientIllnessStateNormalMode.txt"}) {
    GameBench bench;
    bench.files.Remove(kBase + std::string(path));
    EXPECT_EQ(bench.Play(), Status::kFailed) << path;
    EXPECT_THAT(bench.Boxes(), ElementsAre("File C:\\game" + std::string(path) + " not found"));
    // A crash of the start makes the next one ask.
    EXPECT_EQ(bench.File("\\GameRunning.txt"), "On\r\n");
    EXPECT_TRUE(bench.backend.window.PointerVisible());
  }
}

TEST_F(GameRun, TheEventLogIsNewOnEachRunAndTakesWarnings) {
  files.Put("\\general.txt", "old\r\n");
  Play();
  EXPECT_EQ(File("\\general.txt"), "");
  Do([&] {
    bool result = true;
    Logic()->CurrentScreen()->HandleMessage("showtype_patient", nullptr, true, result);
  });
  EXPECT_EQ(File("\\general.txt"),
            "introscreen Warning: Did not Find the object requested by the message "
            "showtype_patient\r\n");
}

TEST_F(GameRun, TwoGamesRunSideBySideOnTwoThreads) {
  std::vector<std::string> frames(2);
  std::vector<std::thread> threads;
  for (std::string& end : frames) {
    threads.emplace_back([&end] {
      GameBench bench;
      bench.Play();
      for (int i = 0; i < 20; ++i) {
        bench.Click(120, 120);
        bench.Tick(100);
        bench.Send("cs_floor1hall1");
        bench.Tick(50);
      }
      bench.Close();
      end = bench.File("\\userdata.txt") + bench.File("\\general.txt");
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(frames[0], frames[1]);
  EXPECT_THAT(frames[0], HasSubstr("floor1hall1"));
}

}  // namespace
}  // namespace quendle
