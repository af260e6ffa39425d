// "userdata.txt" and the snapshot beside it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/ScreenKeeper.h"
#include "screens/WorldBench.h"

namespace quendle {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class NoLogic : public MessageTarget {
 public:
  void HandleMessage(const std::string&, GameObjectInterface*, bool, bool&) override {}
};

struct SavedGameBench : testing::Test, WorldBench {
  void Screens(const std::vector<std::pair<std::string, std::string>>& typed_names) {
    std::string table;
    for (const auto& [type, name] : typed_names) {
      PutObject(files,
                {.type = type, .name = name, .states = {{.name = "default"}, {.name = "better1"}}});
      table += ObjectPath(name) + "\n";
    }
    files.Put("\\Info\\screens.txt", table);
    keeper.InitializeScreenKeeper("\\Info\\screens.txt", logic, 0);
  }
  static std::string Record(const std::string& name, const std::string& state = "default") {
    return "begin\r\n" + name + "\r\n" + state + "\r\n0\r\n0\r\nTrue\r\nend\r\n";
  }
  std::string FaultOfLoading(const std::string& text) {
    files.Put("\\userdata.txt", text);
    ScreenKeeper reader(objects);
    return Fault([&] { reader.LoadGame("userdata.txt"); });
  }

  std::shared_ptr<NoLogic> logic = std::make_shared<NoLogic>();
  ScreenKeeper keeper{objects};
};

using SavedGameTest = SavedGameBench;

TEST_F(SavedGameTest, WithoutMementosTheFileHasTwoLines) {
  keeper.SaveGame("userdata.txt");
  EXPECT_EQ(File("\\userdata.txt"), "begin\r\nend\r\n");
}

TEST_F(SavedGameTest, TheFileHoldsTheCachedScreensBetweenBeginAndEnd) {
  PutObject(files, {.type = "doctor",
                    .name = "doctor",
                    .directives = "state_better1",
                    .states = {{.name = "better1"}}});
  PutObject(files,
            {.type = "hall",
             .name = "floor1hall1",
             .children = {ObjectPath("doctor") + " state_better1 xpos_120 ypos_-200 visible_off"}});
  files.Put("\\Info\\screens.txt", ObjectPath("floor1hall1") + "\n");
  keeper.InitializeScreenKeeper("\\Info\\screens.txt", logic, 0);
  keeper.GetScreen("floor1hall1");
  keeper.SaveGame("userdata.txt");
  EXPECT_EQ(File("\\userdata.txt"),
            "begin\r\n"
            "begin\r\nfloor1hall1\r\ndefault\r\n0\r\n0\r\nTrue\r\n"
            "begin\r\ndoctor\r\nbetter1\r\n120\r\n-200\r\nFalse\r\nend\r\n"
            "end\r\n"
            "end\r\n");
}

TEST_F(SavedGameTest, SomeNamesAreNeverWrittenByContainment) {
  const char* names[] = {"myTutorial", "cursors", "squareroom", "topSHOOTERhall",
                         "tools",      "blinker", "room"};
  std::string text = "begin\n";
  for (const char* name : names) text += Record(name);
  files.Put("\\userdata.txt", text + "end\n");
  keeper.LoadGame("userdata.txt");
  keeper.SaveGame("userdata.txt");
  EXPECT_EQ(File("\\userdata.txt"),
            "begin\r\n" + Record("tools") + Record("blinker") + Record("room") + "end\r\n");
}

TEST_F(SavedGameTest, NamesThatAreNotWrittenAreTakenInMemoryAllTheSame) {
  Screens({{"overlay", "cursors"}, {"hall", "squareroom"}, {"hall", "room"}});
  for (const char* name : {"cursors", "squareroom", "room"}) {
    keeper.GetScreen(name)->ProcessState("better1");
  }
  keeper.SaveGame("userdata.txt");
  EXPECT_EQ(File("\\userdata.txt"), "begin\r\n" + Record("room", "better1") + "end\r\n");
  ASSERT_EQ(keeper.Mementos().Count(), 3u);
  for (const auto& entry : keeper.Mementos()) {
    EXPECT_EQ(entry.value->CurrentState(), "better1") << entry.key;
  }
}

TEST_F(SavedGameTest, BlinkerAndBobblerScreensStayOutByTheirTypeOnly) {
  Screens({{"subgame", "blinker"}, {"hall", "bobbler"}});
  ObjectRef game = keeper.GetScreen("blinker");
  keeper.SaveScreen(game);
  keeper.GetScreen("bobbler");
  keeper.SaveGame("userdata.txt");
  EXPECT_EQ(File("\\userdata.txt"), "begin\r\n" + Record("bobbler") + "end\r\n");
}

TEST_F(SavedGameTest, ScreensOfTheFileThatNobodyAsksForAreWrittenBackUnchanged) {
  const std::string text =
      "begin\r\n" + Record("a", "better1") + Record("unheardof", "x y") + "end\r\n";
  files.Put("\\userdata.txt", text);
  keeper.LoadGame("userdata.txt");
  keeper.SaveGame("userdata.txt");
  EXPECT_EQ(File("\\userdata.txt"), text);
}

TEST_F(SavedGameTest, TheOrderIsThatOfTheStoring) {
  Screens({{"hall", "a"}, {"hall", "b"}});
  files.Put("\\userdata.txt", "begin\r\n" + Record("b") + Record("z") + "end\r\n");
  keeper.LoadGame("userdata.txt");
  keeper.GetScreen("a");
  keeper.GetScreen("b");
  keeper.SaveGame("userdata.txt");
  EXPECT_EQ(File("\\userdata.txt"),
            "begin\r\n" + Record("z") + Record("a") + Record("b") + "end\r\n");
}

TEST_F(SavedGameTest, AMissingFileIsANewGame) {
  keeper.LoadGame("userdata.txt");
  EXPECT_TRUE(keeper.Mementos().Empty());
}

TEST_F(SavedGameTest, TheFirstLineIsNotLookedAt) {
  files.Put("\\userdata.txt", "anything\n" + Record("a") + "END\n");
  keeper.LoadGame("userdata.txt");
  EXPECT_EQ(keeper.Mementos().Count(), 1u);
}

TEST_F(SavedGameTest, DamagedFilesAreFatalAndNameTheLine) {
  EXPECT_THAT(FaultOfLoading(""), StartsWith("userdata.txt"));
  EXPECT_THAT(FaultOfLoading("begin\n"), StartsWith("userdata.txt:"));
  EXPECT_THAT(FaultOfLoading("begin\n" + Record("a")), StartsWith("userdata.txt:"));
  // A lost line shifts all that follow.
  EXPECT_THAT(FaultOfLoading("begin\nbegin\na\n0\n0\nTrue\nend\nend\n"),
              StartsWith("userdata.txt:6: "));
  EXPECT_THAT(FaultOfLoading("begin\nbegin\na\nb\nx\n0\nTrue\nend\nend\n"),
              testing::AllOf(StartsWith("userdata.txt:5: "), HasSubstr("x")));
  EXPECT_THAT(FaultOfLoading("begin\n" + Record("a") + Record("A") + "end\n"),
              testing::AllOf(StartsWith("userdata.txt:"), HasSubstr("\"A\"")));
}

// A save that is stopped at any operation leaves the old file or the new one.
TEST_F(SavedGameTest, ASaveStoppedAtAnyFileOperationLeavesAWholeFile) {
  Screens({{"hall", "a"}});
  keeper.GetScreen("a");
  const std::string old_text = "begin\r\n" + Record("old") + "end\r\n";
  const std::string new_text = "begin\r\n" + Record("a") + "end\r\n";
  for (const char* operation : {"open", "write", "writepart", "flush", "rename", "flushfolder"}) {
    files.Put("\\userdata.txt", old_text);
    Faults& plan = faults;
    plan.Plan(operation, 0, 1, false);
    EXPECT_THAT(Fault([&] { keeper.SaveGame("userdata.txt"); }), StartsWith("userdata.txt"))
        << operation;
    const std::string left = File("\\userdata.txt");
    EXPECT_TRUE(left == old_text || left == new_text) << operation << ":\n" << left;
    plan.Plan(operation, 1000000, 1, false);
  }
  keeper.SaveGame("userdata.txt");
  EXPECT_EQ(File("\\userdata.txt"), new_text);
}

// --- The snapshot.

TEST_F(SavedGameTest, ASnapshotWritesWhatSavingWouldAndLeavesTheKeeperAlone) {
  Screens({{"hall", "a"}, {"hall", "b"}, {"hall", "cursors"}, {"hall", "tutorial"}});
  ObjectRef a = keeper.GetScreen("a");
  keeper.SaveScreen(a);
  keeper.GetScreen("b");
  keeper.SaveScreen(keeper.GetScreen("b"));
  keeper.GetScreen("cursors");
  a->ProcessState("better1");

  auto describe = [&] {
    std::string text;
    for (const auto& entry : keeper.Mementos()) {
      text += entry.value->ObjectName() + "=" + entry.value->CurrentState() + " ";
    }
    for (const auto& entry : keeper.Cache()) text += std::to_string(entry.value.m_nAge) + " ";
    return text + a->CurrentState();
  };
  const std::string before = describe();
  EXPECT_TRUE(keeper.WriteSnapshot("autosave.txt"));
  EXPECT_EQ(describe(), before);
  EXPECT_EQ(before, "a=default b=default 1 1 0 better1");

  keeper.SaveGame("userdata.txt");
  EXPECT_EQ(File("\\autosave.txt"), File("\\userdata.txt"));
  EXPECT_EQ(File("\\autosave.txt"), "begin\r\n" + Record("a", "better1") + Record("b") + "end\r\n");
}

TEST_F(SavedGameTest, ASnapshotHoldsScreensThatAreNotLiveAsWell) {
  Screens({{"hall", "a"}});
  files.Put("\\userdata.txt", "begin\n" + Record("z", "better1") + "end\n");
  keeper.LoadGame("userdata.txt");
  keeper.GetScreen("a");
  EXPECT_TRUE(keeper.WriteSnapshot("autosave.txt"));
  EXPECT_EQ(File("\\autosave.txt"), "begin\r\n" + Record("z", "better1") + Record("a") + "end\r\n");
}

TEST_F(SavedGameTest, AFailedSnapshotSaysSoAndLeavesTheOldOne) {
  Screens({{"hall", "a"}});
  keeper.GetScreen("a");
  EXPECT_TRUE(keeper.WriteSnapshot("autosave.txt"));
  const std::string whole = File("\\autosave.txt");
  keeper.GetScreen("a")->ProcessState("better1");
  faults.Plan("rename", 0, 1, false);
  EXPECT_FALSE(keeper.WriteSnapshot("autosave.txt"));
  EXPECT_EQ(File("\\autosave.txt"), whole);
}

}  // namespace
}  // namespace quendle
