// The shared sounds, scripts and objects, and their lists.

#include "shell/Registries.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "media/SoundState.h"
#include "script/ScriptState.h"
#include "shell/GameBench.h"

namespace quendle {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using Status = Application::Status;

struct RegistryGame : GameBench {
  void Sounds(const std::string& text) { files.Put("\\Info\\globalsoundstates.txt", text); }
  void Scripts(const std::string& text) { files.Put("\\Info\\globalscriptstates.txt", text); }
  Globals& Game() { return *application.Game(); }
  std::string FaultText() {
    EXPECT_EQ(Play(), Status::kFailed);
    return application.Fault().box_text;
  }
};

struct RegistryBench : testing::Test, RegistryGame {};

using Registries = RegistryBench;

TEST_F(Registries, AGlobalSoundIsLoadedAtTheStartUnderItsName) {
  files.Put("\\Info\\sounds\\click.wma", "sound");
  Sounds(
      "click\r\n\\Info\\sounds\\click.wav\r\nLOOP\r\nanything\r\n"
      "gone\r\n\\Info\\sounds\\gone.wav\r\nno\r\n-\r\n");
  ASSERT_EQ(Play(), Status::kRunning) << application.Fault().box_text;
  std::shared_ptr<SoundState> click = Game().media.FindGlobalSound("CLICK");
  ASSERT_NE(click, nullptr);
  EXPECT_EQ(click->Sound(), "C:\\game\\Info\\sounds\\click.wma");
  EXPECT_TRUE(click->Loaded());
  EXPECT_TRUE(click->DoWeLoop());
  std::shared_ptr<SoundState> gone = Game().media.FindGlobalSound("gone");
  ASSERT_NE(gone, nullptr);
  EXPECT_FALSE(gone->FileFound());
  EXPECT_FALSE(gone->DoWeLoop());
  EXPECT_EQ(Game().media.FindGlobalSound("nosuch"), nullptr);
}

TEST_F(Registries, TheTokenOfTheCurrentFolderMeansTheFolderOfTheList) {
  Sounds(
      "a\n<CurrentDirectory>\\a.wma\nno\n-\n"
      "b\n<PreviousDirectory>\\b.wma\nno\n-\n"
      "c\n<GlobalDirectory>\\c.wma\nno\n-\n");
  ASSERT_EQ(Play(), Status::kRunning) << application.Fault().box_text;
  auto path = [&](const char* name) { return Game().media.FindGlobalSound(name)->Sound(); };
  EXPECT_EQ(path("a"), "C:\\game\\Info\\a.wma");
  EXPECT_EQ(path("b"), "C:\\game\\b.wma");
  EXPECT_EQ(path("c"), "C:\\game\\Info\\GlobalReferences\\c.wma");
}

TEST_F(Registries, GlobalScriptsAreParsedAndSharedByAnyNumberOfObjects) {
  files.Put("\\Info\\GlobalReferences\\leave.txt", "begin\nmtp cs_floor1hall1\nend\n");
  Scripts("leave\n<GlobalDirectory>\\leave.txt\n-\n");
  for (const char* name : {"one", "two"}) {
    ObjectText object{.type = "hall",
                      .name = name,
                      .states = {{.name = "default", .script = "leave"}},
                      .scripts = {{"globalscript_leave", ""}}};
    PutScreen(files, object);
  }
  ASSERT_EQ(Play(), Status::kRunning) << application.Fault().box_text;
  for (const char* name : {"one", "two"}) {
    Send(std::string("toscreen_") + name + "_useraction_x");
    EXPECT_EQ(Current(), "floor1hall1");
    Send("cs_credits");
  }
}

TEST_F(Registries, AScriptOfTheListMayStandBesideIt) {
  files.Put("\\Info\\leave.txt", "begin\nmtp cs_floor1hall1\nend\n");
  Scripts("leave\n<CurrentDirectory>\\leave.txt\n-\n");
  ASSERT_EQ(Play(), Status::kRunning) << application.Fault().box_text;
  EXPECT_NE(Game().scripts.GlobalScripts.Find("LEAVE"), nullptr);
}

TEST_F(Registries, ObjectsMayNameEarlierOnesAndLaterOnesAreSkipped) {
  PutGlobal(files, {.type = "button",
                    .name = "late",
                    .children = {"GlobalObject_handcursor", "GlobalObject_later"}});
  PutGlobal(files, {.type = "button", .name = "later"});
  ASSERT_EQ(Play(), Status::kRunning) << application.Fault().box_text;
  EXPECT_THAT(ChildNames(World().FindGlobalObject("LATE")), ElementsAre("handcursor"));
}

TEST_F(Registries, TheRulesAreTheParentOfEveryGlobalObject) {
  Play();
  EXPECT_EQ(World().FindGlobalObject("bandaidtool")->Parent(), Logic());
  EXPECT_EQ(World().FindGlobalObject("doctor")->Parent(), Logic());
}

TEST_F(Registries, TheRegistriesFillInTheirOrder) {
  // A global object's sound and script are there when it is loaded.
  files.Put("\\Info\\x.txt", "begin\nmtp x\nend\n");
  files.Put("\\Info\\s.wma", "sound");
  Scripts("x\n\\Info\\x.txt\n-\n");
  Sounds("s\n\\Info\\s.wma\nno\n-\n");
  PutGlobal(files, {.type = "button",
                    .name = "user",
                    .states = {{.name = "default", .sound = "s", .script = "x"}},
                    .scripts = {{"globalscript_x", ""}},
                    .sounds = {"globalsound_s"}});
  EXPECT_EQ(Play(), Status::kRunning) << application.Fault().box_text;
}

TEST_F(Registries, TwoEntriesOfOneNameAreFatalAndNameTheirLine) {
  {
    RegistryGame game;
    game.Sounds("a\n\\a.wma\nno\n-\nA\n\\a.wma\nno\n-\n");
    EXPECT_THAT(game.FaultText(), StartsWith("Info\\globalsoundstates.txt:5: "));
  }
  {
    RegistryGame game;
    game.files.Put("\\Info\\x.txt", "begin\nmtp x\nend\n");
    game.Scripts("a\n\\Info\\x.txt\n-\nA\n\\Info\\x.txt\n-\n");
    EXPECT_THAT(game.FaultText(), StartsWith("Info\\globalscriptstates.txt:4: "));
  }
  RegistryGame game;
  const std::string list = "\\Info\\globalgameobjects.txt";
  game.files.Put(list, game.File(list) + ObjectPath("doctor") + "\n");
  EXPECT_THAT(game.FaultText(),
              AllOf(StartsWith("Info\\globalgameobjects.txt:"), HasSubstr("doctor")));
}

TEST_F(Registries, ARecordThatIsCutShortIsFatalAndNamesItsList) {
  {
    RegistryGame game;
    game.Sounds("a\n\\a.wma\nno\n");
    EXPECT_THAT(game.FaultText(), StartsWith("Info\\globalsoundstates.txt:"));
  }
  RegistryGame game;
  game.files.Put("\\Info\\x.txt", "begin\nmtp x\nend\n");
  game.Scripts("a\n\\Info\\x.txt\n");
  EXPECT_THAT(game.FaultText(), StartsWith("Info\\globalscriptstates.txt:"));
}

TEST_F(Registries, AMissingScriptOfTheListIsFatalWithItsBox) {
  Scripts("a\n\\Info\\gone.txt\n-\n");
  EXPECT_EQ(FaultText(), "File C:\\game\\Info\\gone.txt not found");
}

TEST_F(Registries, AnUnknownTypeWordIsFatalAndTheNearestIsTold) {
  PutGlobal(files, {.type = "tooll", .name = "odd"});
  EXPECT_THAT(FaultText(),
              AllOf(StartsWith("Info\\odd\\odd.txt:1: "), HasSubstr("did you mean \"tool\"")));
}

TEST_F(Registries, EveryTypeWordMakesItsObject) {
  Play();
  for (const char* type :
       {"hall", "overlay", "dialog", "button", "key", "subgame", "doctor", "patient", "menu",
        "playareasquare", "playareablinker", "playareabobbler", "playareashooter", "TOOL",
        "bodyview", "pointsystem"}) {
    EXPECT_NE(Game().factory.Make(type, World()), nullptr) << type;
  }
  EXPECT_EQ(Game().factory.Make("scoring", World()), nullptr);
}

}  // namespace
}  // namespace quendle
