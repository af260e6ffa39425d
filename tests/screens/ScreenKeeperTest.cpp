#include "screens/ScreenKeeper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/WorldBench.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class NoLogic : public MessageTarget {
 public:
  void HandleMessage(const std::string&, GameObjectInterface*, bool, bool&) override {}
};

struct KeeperBench : testing::Test, WorldBench {
  KeeperBench() { AddGlobal({.type = "doctor", .name = "doctor", .states = kStates}); }

  // A table of halls of these names, each with a child "NAMEkid"; then the table is read.
  void Screens(const std::vector<std::string>& names) {
    for (const std::string& name : names) AddScreen({.type = "hall", .name = name});
    ReadTable();
  }
  void AddScreen(ObjectText screen) {
    PutObject(files, {.type = "button", .name = screen.name + "kid", .states = kStates});
    screen.states = kStates;
    screen.children.push_back(ObjectPath(screen.name + "kid") + " xpos_1 ypos_2");
    PutObject(files, screen);
    table += ObjectPath(screen.name) + "\r\n";
  }
  void ReadTable() {
    files.Put("\\Info\\screens.txt", table);
    keeper.InitializeScreenKeeper("\\Info\\screens.txt", logic, 0);
  }
  // "name age" or "name age free" for each entry of the cache.
  std::vector<std::string> Cache() const {
    std::vector<std::string> entries;
    for (const auto& entry : keeper.Cache()) {
      entries.push_back(entry.value.m_ptrGameObject->ObjectName() + " " +
                        std::to_string(entry.value.m_nAge) +
                        (entry.value.m_bFreeToRelease ? " free" : ""));
    }
    return entries;
  }
  std::vector<std::string> Mementos() const {
    std::vector<std::string> names;
    for (const auto& entry : keeper.Mementos()) names.push_back(entry.value->ObjectName());
    return names;
  }
  void GetAndFree(const std::string& name) { keeper.FreeToReleaseScreen(keeper.GetScreen(name)); }

  const std::vector<StateText> kStates = {
      {.name = "default"}, {.name = "better1"}, {.name = "passing"}};
  std::string table;
  std::shared_ptr<NoLogic> logic = std::make_shared<NoLogic>();
  ScreenKeeper keeper{objects};
};

using ScreenKeeperTest = KeeperBench;

// --- The table.

TEST_F(ScreenKeeperTest, TheTableTakesTheNameFromTheSecondLineOfEachFile) {
  files.Put("\\Info\\odd.txt", "no type word at all\r\nLobby\r\n");
  table = "\\Info\\odd.txt\r\n";
  ReadTable();
  EXPECT_TRUE(keeper.DoesScreenExist("LOBBY"));
  EXPECT_FALSE(keeper.DoesScreenExist("odd"));
  EXPECT_EQ(keeper.Table().Item(1).ScreenPath, "\\Info\\odd.txt");
}

TEST_F(ScreenKeeperTest, PathsOfTheTableKeepTheirTokens) {
  table = "<CurrentDirectory>\\hall.txt\r\n";
  EXPECT_THAT(Fault([&] { ReadTable(); }), HasSubstr("<CurrentDirectory>\\hall.txt"));
}

TEST_F(ScreenKeeperTest, ABlankLineOfTheTableIsFatalAndNamed) {
  AddScreen({.type = "hall", .name = "hall"});
  table += "\r\n";
  EXPECT_THAT(Fault([&] { ReadTable(); }),
              HasSubstr(":2: the line is blank where the path of a screen should stand"));
}

TEST_F(ScreenKeeperTest, AScreenThatWasNeverLoadedExists) {
  Screens({"hall"});
  EXPECT_TRUE(keeper.DoesScreenExist("Hall"));
  EXPECT_FALSE(keeper.DoesScreenExist("currentscreen"));
  EXPECT_TRUE(keeper.Cache().Empty());
}

TEST_F(ScreenKeeperTest, EnumerationAppendsAllNamesButToolsAndCursors) {
  Screens({"introscreen", "Tools", "hall", "CURSORS", "toolsroom"});
  std::vector<std::string> names = {"before"};
  keeper.EnumerateScreens(names);
  EXPECT_THAT(names, ElementsAre("before", "introscreen", "hall", "toolsroom"));
}

TEST_F(ScreenKeeperTest, TwoScreensOfOneNameAreFatalAndTheLineIsNamed) {
  Screens({"hall"});
  files.Put("\\Info\\twin.txt", "hall\r\nHALL\r\n");
  files.Put("\\Info\\screens.txt", ObjectPath("hall") + "\r\n\\Info\\twin.txt\r\n");
  ScreenKeeper other(objects);
  EXPECT_THAT(Fault([&] { other.InitializeScreenKeeper("\\Info\\screens.txt", logic, 0); }),
              testing::AllOf(testing::StartsWith("Info\\screens.txt:2: "), HasSubstr("HALL")));
}

TEST_F(ScreenKeeperTest, AMissingTableAndAMissingScreenFileAreFatalWithTheBoxOfAMissingFile) {
  try {
    keeper.InitializeScreenKeeper("\\Info\\screens.txt", logic, 0);
    FAIL() << "no fault";
  } catch (const FatalError& error) {
    EXPECT_EQ(error.BoxText(), "File C:\\game\\Info\\screens.txt not found");
  }
  table = "\\Info\\gone.txt\r\n";
  try {
    ReadTable();
    FAIL() << "no fault";
  } catch (const FatalError& error) {
    EXPECT_EQ(error.BoxText(), "File C:\\game\\Info\\gone.txt not found");
  }
}

// --- The cache.

TEST_F(ScreenKeeperTest, ANewScreenHasTheLogicAsItsParentAndAgeZero) {
  Screens({"hall"});
  ObjectRef hall = keeper.GetScreen("HALL");
  ASSERT_NE(hall, nullptr);
  EXPECT_EQ(hall->Parent(), logic);
  EXPECT_FALSE(hall->ObjectOn());
  EXPECT_THAT(Cache(), ElementsAre("hall 0"));
}

TEST_F(ScreenKeeperTest, AnUnknownNameGivesNothingWithoutAMessage) {
  Screens({"hall"});
  EXPECT_EQ(keeper.GetScreen("attic"), nullptr);
  EXPECT_TRUE(log.lines.empty());
  EXPECT_TRUE(backend.boxes.Shown().empty());
}

TEST_F(ScreenKeeperTest, OnlyALookupThatFindsALiveScreenAgesTheCache) {
  Screens({"a", "b", "c"});
  keeper.GetScreen("a");
  keeper.GetScreen("b");
  keeper.GetScreen("c");
  EXPECT_THAT(Cache(), ElementsAre("a 0", "b 0", "c 0"));
  keeper.GetScreen("nosuch");
  EXPECT_THAT(Cache(), ElementsAre("a 0", "b 0", "c 0"));
  keeper.GetScreen("a");
  EXPECT_THAT(Cache(), ElementsAre("a 1", "b 1", "c 1"));
  keeper.GetScreen("b");
  EXPECT_THAT(Cache(), ElementsAre("a 2", "b 1", "c 2"));
}

TEST_F(ScreenKeeperTest, AmongEntriesOfOneAgeTheEarliestMakesRoom) {
  Screens({"a", "b", "c", "d", "e", "f"});
  for (const char* name : {"a", "b", "c", "d", "e"}) GetAndFree(name);
  keeper.GetScreen("f");
  EXPECT_THAT(Cache(), ElementsAre("b 0 free", "c 0 free", "d 0 free", "e 0 free", "f 0"));
  EXPECT_THAT(Mementos(), ElementsAre("a"));
}

TEST_F(ScreenKeeperTest, TheFreeEntryOfTheHighestAgeMakesRoom) {
  Screens({"a", "b", "c", "d", "e", "f"});
  for (const char* name : {"a", "b", "c", "d", "e"}) GetAndFree(name);
  for (const char* name : {"a", "b", "d", "e", "a"}) GetAndFree(name);
  ObjectRef victim = keeper.Cache().Item(3).m_ptrGameObject;
  keeper.GetScreen("f");
  EXPECT_THAT(Cache(), ElementsAre("a 1 free", "b 4 free", "d 3 free", "e 2 free", "f 0"));
  EXPECT_THAT(Mementos(), ElementsAre("c"));
  // It was released: nothing is left in it.
  EXPECT_TRUE(victim->Children().Empty());
  EXPECT_EQ(victim->CurrentState(), "");
}

TEST_F(ScreenKeeperTest, ANewScreenIsAsItWasLeftBeforeAnotherMakesRoomForIt) {
  struct NotedSteps : Tracer {
    void Trace(const TraceEvent& event) override {
      const bool step = event.kind == TraceKind::kScreen || event.text == "better1";
      if (step) lines.push_back(std::string(event.to) + " " + std::string(event.text));
    }
    std::vector<std::string> lines;
  } steps;
  Screens({"a", "b", "c", "d", "e", "f"});
  files.Put("\\userdata.txt", "begin\nbegin\nf\nbetter1\n0\n0\nTrue\nend\nend\n");
  keeper.LoadGame("userdata.txt");
  for (const char* name : {"a", "b", "c", "d", "e"}) GetAndFree(name);
  watch.tracer = &steps;
  keeper.GetScreen("f");
  watch.tracer = nullptr;
  EXPECT_THAT(steps.lines, ElementsAre("f build", "f better1", "a release"));
}

TEST_F(ScreenKeeperTest, AnEvictedScreenLeavesOneMementoAndItIsTheNewOne) {
  Screens({"a", "b", "c", "d", "e", "f"});
  for (const char* name : {"a", "b", "c", "d", "e"}) GetAndFree(name);
  ObjectRef screen = keeper.Cache().Find("a")->m_ptrGameObject;
  keeper.SaveScreen(screen);
  screen->ProcessState("better1");
  Child(screen, "akid")->Setxpos(77);
  keeper.GetScreen("f");
  ASSERT_THAT(Mementos(), ElementsAre("a"));
  EXPECT_EQ(keeper.Mementos().Item(1)->CurrentState(), "better1");
  EXPECT_EQ(keeper.Mementos().Item(1)->Children().Item(1)->xpos(), 77);
}

TEST_F(ScreenKeeperTest, WithoutAFreeEntryTheCacheGrows) {
  Screens({"a", "b", "c", "d", "e", "f", "g"});
  for (const char* name : {"a", "b", "c", "d", "e", "f"}) keeper.GetScreen(name);
  EXPECT_EQ(keeper.Cache().Count(), 6u);
  GetAndFree("c");
  keeper.GetScreen("g");
  // One goes, one comes: it doesn't shrink back to five.
  EXPECT_EQ(keeper.Cache().Count(), 6u);
  EXPECT_THAT(Mementos(), ElementsAre("c"));
}

TEST_F(ScreenKeeperTest, ToolsAndCursorsCountButNeverMakeRoom) {
  Screens({"Tools", "Cursors", "a", "b", "c", "d"});
  for (const char* name : {"tools", "cursors", "a", "b", "c"}) GetAndFree(name);
  keeper.GetScreen("d");
  EXPECT_THAT(Cache(),
              ElementsAre("Tools 0 free", "Cursors 0 free", "b 0 free", "c 0 free", "d 0"));
}

TEST_F(ScreenKeeperTest, ALookupTakesTheFreedomBackAndNothingGivesItAgain) {
  Screens({"a"});
  GetAndFree("a");
  EXPECT_THAT(Cache(), ElementsAre("a 0 free"));
  keeper.SaveScreen(keeper.GetScreen("a"));
  EXPECT_THAT(Cache(), ElementsAre("a 1"));
}

TEST_F(ScreenKeeperTest, FreeingNothingOrAScreenThatIsNotCachedIsIgnored) {
  Screens({"a", "tutorial1"});
  ObjectRef tutorial = keeper.GetScreen("tutorial1");
  keeper.FreeToReleaseScreen(nullptr);
  keeper.FreeToReleaseScreen(tutorial);
  EXPECT_TRUE(keeper.Cache().Empty());
}

TEST_F(ScreenKeeperTest, TutorialsByNameAndSubgamesByTypeAreBuiltAnewAndKeepNoMemento) {
  AddScreen({.type = "hall", .name = "mytutorialroom"});
  AddScreen({.type = "subgame", .name = "maze"});
  AddScreen({.type = "hall", .name = "subgamehall"});
  ReadTable();
  for (const char* name : {"mytutorialroom", "maze"}) {
    ObjectRef first = keeper.GetScreen(name);
    first->ProcessState("better1");
    keeper.SaveScreen(first);
    ObjectRef second = keeper.GetScreen(name);
    EXPECT_NE(first, second);
    EXPECT_EQ(second->CurrentState(), "default");
  }
  EXPECT_TRUE(keeper.Cache().Empty());
  EXPECT_TRUE(keeper.Mementos().Empty());
  EXPECT_EQ(keeper.GetScreen("subgamehall"), keeper.GetScreen("subgamehall"));
}

TEST_F(ScreenKeeperTest, ATutorialDiesWithItsLastHolder) {
  Screens({"tutorial1"});
  std::weak_ptr<GameObjectInterface> watched = keeper.GetScreen("tutorial1");
  EXPECT_TRUE(watched.expired());
}

TEST_F(ScreenKeeperTest, AnEvictedScreenLeavesItsSharedChildAlive) {
  AddScreen({.type = "hall", .name = "a", .children = {"GlobalObject_doctor"}});
  for (const char* name : {"b", "c", "d", "e", "f"}) AddScreen({.type = "hall", .name = name});
  ReadTable();
  for (const char* name : {"a", "b", "c", "d", "e"}) GetAndFree(name);
  keeper.GetScreen("f");
  EXPECT_THAT(Mementos(), ElementsAre("a"));
  EXPECT_EQ(objects.FindGlobalObject("doctor")->CurrentState(), "default");
}

TEST_F(ScreenKeeperTest, AgesSaturateOverALongSession) {
  Screens({"a", "b"});
  keeper.GetScreen("a");
  for (int i = 0; i < 40000; ++i) keeper.GetScreen("b");
  EXPECT_THAT(Cache(), ElementsAre("a 32767", "b 1"));
}

// --- Mementos.

TEST_F(ScreenKeeperTest, AScreenComesBackAsItWasLeftFromTheCacheAndRebuilt) {
  Screens({"a", "b", "c", "d", "e", "f"});
  ObjectRef a = keeper.GetScreen("a");
  a->ProcessState("better1");
  Child(a, "akid")->Setxpos(-77);
  Child(a, "akid")->SetVisible(false);
  keeper.SaveScreen(a);
  // What happens after the save isn't kept, not even in the cache.
  a->ProcessState("default");
  Child(a, "akid")->Setxpos(5);
  a = keeper.GetScreen("a");
  EXPECT_EQ(a->CurrentState(), "better1");
  EXPECT_EQ(Child(a, "akid")->xpos(), -77);
  EXPECT_FALSE(Child(a, "akid")->Visible());

  GetAndFree("a");
  for (const char* name : {"b", "c", "d", "e", "f"}) GetAndFree(name);
  ObjectRef rebuilt = keeper.GetScreen("a");
  EXPECT_NE(rebuilt, a);
  EXPECT_EQ(rebuilt->CurrentState(), "better1");
  EXPECT_EQ(Child(rebuilt, "akid")->xpos(), -77);
  EXPECT_EQ(Child(rebuilt, "akid")->ypos(), 2);
  EXPECT_FALSE(Child(rebuilt, "akid")->Visible());
}

TEST_F(ScreenKeeperTest, AStoredMementoMovesToTheEndOfTheOrder) {
  Screens({"a", "b", "c"});
  for (const char* name : {"a", "b", "c"}) keeper.SaveScreen(keeper.GetScreen(name));
  EXPECT_THAT(Mementos(), ElementsAre("a", "b", "c"));
  keeper.SaveScreen(keeper.GetScreen("a"));
  EXPECT_THAT(Mementos(), ElementsAre("b", "c", "a"));
}

TEST_F(ScreenKeeperTest, AScreenThatIsNotCachedIsNotSaved) {
  Screens({"a", "b"});
  ObjectRef stranger = Make("b");
  keeper.SaveScreen(stranger);
  keeper.SaveScreen(nullptr);
  keeper.ReleaseScreen(stranger);
  keeper.ReleaseScreen(nullptr);
  EXPECT_TRUE(keeper.Mementos().Empty());
  EXPECT_EQ(stranger->CurrentState(), "default");
}

TEST_F(ScreenKeeperTest, ReleasingAScreenStoresItsMementoAndTakesItOut) {
  Screens({"a"});
  ObjectRef a = keeper.GetScreen("a");
  a->ProcessState("better1");
  keeper.ReleaseScreen(a);
  EXPECT_TRUE(keeper.Cache().Empty());
  EXPECT_THAT(Mementos(), ElementsAre("a"));
  EXPECT_EQ(keeper.GetScreen("a")->CurrentState(), "better1");
}

TEST_F(ScreenKeeperTest, RefreshAndLoadApplyTheMementoAndWithoutOneChangeNothing) {
  Screens({"a"});
  ObjectRef a = keeper.GetScreen("a");
  a->Setxpos(3);
  keeper.LoadScreen(a);
  EXPECT_EQ(a->xpos(), 3);
  keeper.SaveScreen(a);
  a->Setxpos(9);
  keeper.RefreshScreen(a);
  EXPECT_EQ(a->xpos(), 3);
  a->Setxpos(9);
  keeper.LoadScreen(a);
  EXPECT_EQ(a->xpos(), 3);
}

TEST_F(ScreenKeeperTest, AMementoTakesTheStateThatAPassingOneReturnsTo) {
  Screens({"a"});
  ObjectRef a = keeper.GetScreen("a");
  Child(a, "akid")->Send("runstate_passing");
  // A change during the run doesn't touch the way back.
  Child(a, "akid")->Send("changestate_better1");
  keeper.SaveScreen(a);
  EXPECT_EQ(keeper.Mementos().Item(1)->Children().Item("akid")->CurrentState(), "default");
}

TEST_F(ScreenKeeperTest, ASharedDoctorIsWrittenWithTodaysStateIntoEveryCachedScreen) {
  AddScreen({.type = "hall", .name = "a", .children = {"GlobalObject_doctor"}});
  AddScreen({.type = "hall", .name = "b", .children = {"GlobalObject_doctor"}});
  ReadTable();
  keeper.SaveScreen(keeper.GetScreen("a"));
  ObjectRef b = keeper.GetScreen("b");
  Child(b, "doctor")->ProcessState("better1");
  Child(b, "doctor")->Setxpos(44);
  keeper.SaveGame("userdata.txt");
  for (const auto& entry : keeper.Mementos()) {
    GameObjectMemento& doctor = *entry.value->Children().Item("doctor");
    EXPECT_EQ(doctor.CurrentState(), "better1") << entry.key;
    EXPECT_EQ(doctor.xpos(), 44) << entry.key;
  }
}

TEST_F(ScreenKeeperTest, AGlobalThatAScriptPutInComesBackWithoutBeingTurnedOn) {
  Screens({"a", "b", "c", "d", "e", "f"});
  AddGlobal({.type = "tool", .name = "bandaidtool", .states = kStates});
  ObjectRef a = keeper.GetScreen("a");
  a->TurnOn();
  a->Send("addglobalobj_bandaidtool");
  Child(a, "bandaidtool")->ProcessState("better1");
  Child(a, "bandaidtool")->Setxpos(60);
  a->TurnOff();
  GetAndFree("a");
  for (const char* name : {"b", "c", "d", "e", "f"}) GetAndFree(name);
  ObjectRef tool = objects.FindGlobalObject("bandaidtool");
  tool->ProcessState("default");
  tool->Setxpos(0);

  ObjectRef rebuilt = keeper.GetScreen("a");
  EXPECT_THAT(ChildNames(rebuilt), ElementsAre("akid", "bandaidtool"));
  EXPECT_EQ(Child(rebuilt, "bandaidtool"), tool);
  EXPECT_EQ(tool->CurrentState(), "better1");
  EXPECT_EQ(tool->xpos(), 60);
  EXPECT_FALSE(tool->ObjectOn());
}

TEST_F(ScreenKeeperTest, AMementoNeverRemovesChildren) {
  Screens({"a"});
  ObjectRef a = keeper.GetScreen("a");
  keeper.SaveScreen(a);
  AddGlobal({.type = "tool", .name = "late", .states = kStates});
  a->Send("addglobalobj_late");
  keeper.LoadScreen(a);
  EXPECT_THAT(ChildNames(a), ElementsAre("akid", "late"));
}

TEST_F(ScreenKeeperTest, AMementoDoesNotClearTheHistory) {
  Screens({"a"});
  ObjectRef a = keeper.GetScreen("a");
  keeper.SaveScreen(a);
  Child(a, "akid")->Send("runstate_better1");
  keeper.LoadScreen(a);
  EXPECT_EQ(Child(a, "akid")->CurrentState(), "default");
  Child(a, "akid")->Send("changestate_passing");
  keeper.SaveScreen(a);
  EXPECT_EQ(keeper.Mementos().Item(1)->Children().Item("akid")->CurrentState(), "default");
}

TEST_F(ScreenKeeperTest, AMementoOfAChildThatIsGoneIsDroppedInSilence) {
  Screens({"a"});
  files.Put("\\userdata.txt",
            "begin\nbegin\na\nbetter1\n0\n0\nTrue\nbegin\nghost\ndefault\n0\n0\nTrue\nend\nend\n"
            "end\n");
  keeper.LoadGame("userdata.txt");
  ObjectRef a = keeper.GetScreen("a");
  EXPECT_EQ(a->CurrentState(), "better1");
  EXPECT_THAT(ChildNames(a), ElementsAre("akid"));
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(ScreenKeeperTest, AStateThatIsGoneLeavesTheStateAndStillPlaces) {
  Screens({"a"});
  files.Put("\\userdata.txt", "begin\nbegin\nA\nnosuchstate\n4\n-5\nFalse\nend\nend\n");
  keeper.LoadGame("userdata.txt");
  ObjectRef a = keeper.GetScreen("a");
  EXPECT_EQ(a->CurrentState(), "default");
  EXPECT_EQ(a->xpos(), 4);
  EXPECT_EQ(a->ypos(), -5);
  EXPECT_FALSE(a->Visible());
}

TEST_F(ScreenKeeperTest, AMementoSetsTheStateBeforeThePlace) {
  AddScreen({.type = "hall", .name = "a", .children = {ObjectPath("mover")}});
  ReadTable();
  PutObject(files, {.type = "button", .name = "mover", .width = 10, .height = 10});
  // A frame that places the object: entering its state while on moves it to 30.
  files.Put("\\Info\\mover\\frames.txt", "f1\nnothing\n30\n30\n0\n0\n10\n10\n-\n");
  ObjectRef a = keeper.GetScreen("a");
  a->TurnOn();
  EXPECT_EQ(Child(a, "mover")->xpos(), 30);
  Child(a, "mover")->Setxpos(8);
  keeper.SaveScreen(a);
  a->TurnOff();
  a->TurnOn();
  EXPECT_EQ(Child(a, "mover")->xpos(), 30);
  keeper.LoadScreen(a);
  EXPECT_EQ(Child(a, "mover")->xpos(), 8);
}

TEST_F(ScreenKeeperTest, ReleaseForgetsEverythingAndMayRunAgain) {
  Screens({"a"});
  std::weak_ptr<GameObjectInterface> a = keeper.GetScreen("a");
  keeper.SaveScreen(a.lock());
  keeper.Release();
  EXPECT_TRUE(a.expired());
  EXPECT_TRUE(keeper.Mementos().Empty());
  EXPECT_FALSE(keeper.DoesScreenExist("a"));
  keeper.Release();
}

}  // namespace
}  // namespace quendle
