// Start, pointer events, frames and the end of the game's rules.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "logic/LogicBench.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct LayerBench : testing::Test, LogicBench {
  // Names of the objects that a frame shows, back to front.
  struct Blits : BlitWatcher {
    void Blitted(const std::string& object, const std::string&, const PlacedFrame&,
                 DrawStatus) override {
      objects.push_back(object);
    }
    std::vector<std::string> objects;
  };
  std::vector<std::string> Drawn() {
    Blits blits;
    objects.blit_watcher = &blits;
    logic->draw();
    objects.blit_watcher = nullptr;
    return blits.objects;
  }
};

using GameLogicLayerTest = LayerBench;

TEST_F(GameLogicLayerTest, ANewLayerIsOffAndEmpty) {
  logic = std::make_shared<GameLogicLayer>(objects, host);
  EXPECT_EQ(logic->ObjectType(), "GameLogic");
  logic->SetObjectType("other");
  EXPECT_EQ(logic->ObjectType(), "other");
  EXPECT_EQ(logic->ToolsState(), "off");
  EXPECT_EQ(logic->CurrentCursor(), "");
  EXPECT_EQ(logic->PreviousCursor(), "");
  EXPECT_EQ(logic->Music(), nullptr);
  Move(1, 1);  // without a current screen
  logic->PlaySound();
  logic->PauseSound();
  logic->Release();
}

TEST_F(GameLogicLayerTest, TheGameBeginsInTheIntroWithTheHand) {
  Start();
  EXPECT_FALSE(host.pointer);
  EXPECT_EQ(Current(), "introscreen");
  EXPECT_EQ(Previous(), "(none)");
  EXPECT_EQ(logic->CurrentCursor(), "hand");
  EXPECT_EQ(logic->PreviousCursor(), "");
  EXPECT_EQ(logic->ToolsState(), "off");
  EXPECT_FALSE(logic->SkipNextClick());
  EXPECT_THAT(Pointers(), ElementsAre("exitdialog", "exitbutton", "handcursor"));
  EXPECT_TRUE(Global("handcursor")->ObjectOn());
  EXPECT_TRUE(logic->ToolsScreen()->ObjectOn());
  ASSERT_EQ(backend.timers.Running().size(), 1u);
  EXPECT_EQ(backend.timers.Running()[0].interval, Milliseconds(50));
  EXPECT_EQ(backend.timers.Running()[0].callback, "OnLogicTimer");
}

TEST_F(GameLogicLayerTest, APointerAddedAtTheStartKeepsTheRulesAsItsParent) {
  Start();
  EXPECT_EQ(Global("handcursor")->Parent(), logic);
}

TEST_F(GameLogicLayerTest, ThePersonComesBeforeTheHandWhenAPictureIsUsed) {
  settings.PersonalizeOn = true;
  Start();
  EXPECT_THAT(Pointers(), ElementsAre("exitdialog", "exitbutton", "personcursor", "handcursor"));
}

TEST_F(GameLogicLayerTest, WithoutAPersonObjectThePictureIsSimplyNotShown) {
  settings.PersonalizeOn = true;
  std::string list = File("\\Info\\globalgameobjects.txt");
  list.erase(list.find(ObjectPath("personcursor")), ObjectPath("personcursor").size() + 1);
  files.Put("\\Info\\globalgameobjects.txt", list);
  Start();
  Move(100, 100);
  EXPECT_EQ(Global("handcursor")->xpos(), 84);
}

TEST_F(GameLogicLayerTest, AMissingIntroToolsOrCursorsScreenIsFatalAndNamed) {
  for (const char* name : {"introscreen", "tools", "cursors"}) {
    LogicBench bench;
    std::string list = bench.File("\\Info\\screens.txt");
    list.erase(list.find(ObjectPath(name)), ObjectPath(name).size() + 1);
    bench.files.Put("\\Info\\screens.txt", list);
    const std::string fault = Fault([&] { bench.Start(); });
    EXPECT_THAT(fault, HasSubstr(std::string("\"") + name + "\""));
    EXPECT_THAT(fault, HasSubstr("Info\\screens.txt"));
  }
}

// --- Pointer events.

TEST_F(GameLogicLayerTest, ThePointerIsPlacedAgainstItsHotSpot) {
  settings.PersonalizeOn = true;
  Start();
  Move(400, 300);
  EXPECT_EQ(Global("handcursor")->xpos(), 384);
  EXPECT_EQ(Global("handcursor")->ypos(), 292);
  EXPECT_EQ(Global("personcursor")->xpos(), 318);
  EXPECT_EQ(Global("personcursor")->ypos(), 250);
  Click(10, 5);
  EXPECT_EQ(Global("handcursor")->xpos(), -6);
  EXPECT_EQ(Global("handcursor")->ypos(), -3);
  EXPECT_EQ(Global("personcursor")->xpos(), 318);  // moves only with a move
}

TEST_F(GameLogicLayerTest, TheActionIsTheCursorsNameAndTheEvent) {
  Start();
  Move(120, 120);
  Move(1, 1);
  Send("cursor_bandaid");
  Move(120, 120);
  EXPECT_THAT(trace.scripts, ElementsAre("start: handmouseover", "start: handmouseovernot",
                                         "start: bandaidmouseover"));
}

TEST_F(GameLogicLayerTest, EachLayerGetsTheEventInOrderWithItsCoordinatesUnchanged) {
  Start();
  Send("cs_floor1hall1");
  Send("exitondemand");
  Send("toscreen_cursors_showobj_exitbutton");
  ForgetTrace();
  Move(310, 210);
  EXPECT_THAT(trace.scripts,
              ElementsAre("exitdialog: handmouseover", "exitbutton: handmouseovernot",
                          "handtool: handmouseovernot", "medicalbooktool: handmouseovernot",
                          "dogdoor: handmouseovernot", "tooldoor: handmouseovernot"));
}

TEST_F(GameLogicLayerTest, WithoutDialogAndToolsOnlyTheScreenGetsTheEvent) {
  Start();
  Send("toscreen_cursors_showobj_exitbutton");
  ForgetTrace();
  Move(610, 20);
  EXPECT_THAT(trace.scripts, ElementsAre("start: handmouseovernot"));
}

TEST_F(GameLogicLayerTest, AToolTakenFromTheBarKeepsThisVeryClickFromTheScreen) {
  Start();
  Send("cs_floor1hall1");
  // A door under the bar.
  Child(logic->CurrentScreen(), "dogdoor")->Setxpos(150);
  Child(logic->CurrentScreen(), "dogdoor")->Setypos(510);
  ForgetTrace();
  Click(160, 520);  // the medical book, in the second slot
  EXPECT_EQ(logic->CurrentCursor(), "medicalbook");
  EXPECT_EQ(Current(), "floor1hall1");
  EXPECT_THAT(trace.scripts, testing::Not(testing::Contains(HasSubstr("dogdoor"))));
  EXPECT_FALSE(logic->SkipNextClick());
  Click(160, 120);
  EXPECT_THAT(trace.scripts, testing::Contains("dogdoor: medicalbookmouseclicknot"));
}

TEST_F(GameLogicLayerTest, AChangeMadeByTheScreenItselfKeepsNoClick) {
  Start();
  Send("cs_floor1hall1");
  Click(120, 120);
  EXPECT_EQ(Current(), "dogroom");
  EXPECT_FALSE(logic->SkipNextClick());
  ForgetTrace();
  Click(310, 310);
  EXPECT_THAT(trace.scripts, testing::Contains("dog: handmouseclick"));
}

TEST_F(GameLogicLayerTest, AChangeOutsideAClickKeepsExactlyOneClick) {
  Start();
  Send("cs_floor1hall1");
  Send("cursor_hand");
  EXPECT_TRUE(logic->SkipNextClick());
  ForgetTrace();
  Click(120, 120);
  EXPECT_EQ(Current(), "floor1hall1");
  // The tools still got it.
  EXPECT_THAT(trace.scripts,
              ElementsAre("handtool: handmouseclicknot", "medicalbooktool: handmouseclicknot"));
  EXPECT_FALSE(logic->SkipNextClick());
  Click(120, 120);
  EXPECT_EQ(Current(), "dogroom");
}

TEST_F(GameLogicLayerTest, AMoveIsNeverKept) {
  Start();
  Send("cursor_hand");
  ForgetTrace();
  Move(120, 120);
  EXPECT_THAT(trace.scripts, ElementsAre("start: handmouseover"));
  EXPECT_TRUE(logic->SkipNextClick());
}

TEST_F(GameLogicLayerTest, TheDialogIsNotModalAndItsLastClickGoesThrough) {
  Start();
  Send("exitondemand");
  Child(logic->CurrentScreen(), "start")->Setxpos(310);
  Child(logic->CurrentScreen(), "start")->Setypos(210);
  Click(320, 220);  // on the dialog, and on the button behind it
  EXPECT_FALSE(logic->DialogActive());
  EXPECT_EQ(Current(), "floor1hall1");
}

TEST_F(GameLogicLayerTest, AClickInTheBarThatChangesTheScreenReachesTheNewScreenToo) {
  Start();
  Send("cs_floor1hall1");
  PutObject(files, ClickButton("lift", "mtp cs_dogroom\n"));
  ObjectRef lift = Make("lift");
  logic->ToolsScreen()->AddChildObject(lift);
  lift->SetParent(logic->ToolsScreen());
  lift->SetVisible(true);
  lift->Setxpos(700);
  lift->Setypos(500);
  ForgetTrace();
  Click(710, 510);
  EXPECT_EQ(Current(), "dogroom");
  EXPECT_THAT(trace.scripts, testing::Contains("dog: handmouseclicknot"));
  EXPECT_THAT(trace.scripts, testing::Not(testing::Contains(HasSubstr("dogdoor"))));
}

TEST_F(GameLogicLayerTest, AClickWithoutACurrentScreenIsFatal) {
  logic = std::make_shared<GameLogicLayer>(objects, host);
  EXPECT_NE(Fault([&] { Click(1, 1); }), "(none)");
}

TEST_F(GameLogicLayerTest, APointerTooFarOutIsFatalAndNotWrapped) {
  Start();
  EXPECT_THAT(Fault([&] { Move(-32768, 0); }), HasSubstr("pointer"));
}

// --- Frames.

TEST_F(GameLogicLayerTest, LayersAreDrawnBackToFront) {
  Start();
  EXPECT_THAT(Drawn(), ElementsAre("start", "handcursor"));
  Send("cs_floor1hall1");
  EXPECT_THAT(Drawn(),
              ElementsAre("dogdoor", "tooldoor", "handtool", "medicalbooktool", "handcursor"));
  Send("exitondemand");
  EXPECT_THAT(Drawn(), ElementsAre("dogdoor", "tooldoor", "handtool", "medicalbooktool",
                                   "exitdialog", "handcursor"));
}

TEST_F(GameLogicLayerTest, TheWindowPathDrawsTheSameLayers) {
  InitializeWindowGraphics(media);
  media.UseDirectX = false;
  Start();
  Send("cs_floor1hall1");
  EXPECT_THAT(Drawn(),
              ElementsAre("dogdoor", "tooldoor", "handtool", "medicalbooktool", "handcursor"));
}

TEST_F(GameLogicLayerTest, TheTimerDrawsWhileTheGameIsActive) {
  Start();
  Tick(500);
  EXPECT_EQ(logic->FrameCounter(), 10);
  objects.GameActive = false;
  Tick(500);
  EXPECT_EQ(logic->FrameCounter(), 10);
  EXPECT_EQ(objects.gated_ticks, 10);
  objects.GameActive = true;
  Tick(100);
  EXPECT_EQ(logic->FrameCounter(), 12);
}

// --- The end.

TEST_F(GameLogicLayerTest, TurningOffSavesTheGameAndTheHelp) {
  Start();
  Send("cs_floor1hall1");
  logic->TurnOff();
  EXPECT_TRUE(host.pointer);
  EXPECT_TRUE(backend.timers.Running().empty());
  EXPECT_THAT(File("\\userdata.txt"), HasSubstr("floor1hall1"));
  EXPECT_EQ(File("\\HelpSys.txt"), "True\r\nFalse\r\nFalse\r\nFalse\r\nFalse\r\n");
}

TEST_F(GameLogicLayerTest, AfterAResetTheHelpIsStillWritten) {
  Start();
  Send("cs_elevator");
  Send("resetgame");
  Send("cs_floor1hall1");
  logic->TurnOff();
  EXPECT_EQ(File("\\userdata.txt"), "(none)");
  EXPECT_EQ(File("\\HelpSys.txt"), "True\r\nFalse\r\nFalse\r\nTrue\r\nFalse\r\n");
}

TEST_F(GameLogicLayerTest, HelpThatWasGivenIsReadBackInItsOrder) {
  files.Put("\\HelpSys.txt", "false\nTRUE\nFalse\nTrue\nFalse\n");
  Start();
  EXPECT_EQ(Help(), "01010");
}

TEST_F(GameLogicLayerTest, ADamagedHelpFileIsForgottenAndLogged) {
  for (const char* text : {"True\nmaybe\nTrue\nTrue\nTrue\n", "True\nTrue\n", ""}) {
    LogicBench bench;
    bench.files.Put("\\HelpSys.txt", text);
    bench.Start();
    EXPECT_EQ(bench.Help(), "00000") << text;
    EXPECT_THAT(bench.log.lines, Contains(HasSubstr("HelpSys.txt is damaged"))) << text;
    bench.logic->TurnOff();
    EXPECT_EQ(bench.File("\\HelpSys.txt"), "False\r\nFalse\r\nFalse\r\nFalse\r\nFalse\r\n");
  }
}

TEST_F(GameLogicLayerTest, AHelpFileThatCannotBeReadIsNotOverwritten) {
  const std::string given = "True\nTrue\nTrue\nTrue\nTrue\n";
  files.Put("\\HelpSys.txt", given);
  files.Record(true);
  bool refused = false;
  faults.Watch([&](std::string_view operation) {
    const auto& operations = files.Operations();
    refused = operation == "read" && operations.back().path.ends_with("HelpSys.txt");
    return refused ? Faults::Kind::kFail : Faults::Kind::kNone;
  });
  Start();
  EXPECT_EQ(Help(), "00000");
  faults.Watch(nullptr);
  logic->TurnOff();
  EXPECT_EQ(File("\\HelpSys.txt"), given);
}

TEST_F(GameLogicLayerTest, TheNextRunRemembersWhereEverythingWas) {
  Start();
  Send("cs_floor1hall1");
  Send("toscreen_tools_addglobalobj_bandaidtool");
  Child(logic->CurrentScreen(), "dogdoor")->ProcessState("better1");
  logic->TurnOff();
  logic->Release();
  const MemoryFileSystem saved = files;

  LogicBench next;
  next.files = saved;
  next.Start();
  EXPECT_THAT(next.Tools(),
              ElementsAre("handtool", "leftarrow", "rightarrow", "medicalbooktool", "bandaidtool"));
  EXPECT_EQ(next.Global("bandaidtool")->xpos(), 60 + 2 * 85);
  next.Send("cs_floor1hall1");
  EXPECT_EQ(Child(next.logic->CurrentScreen(), "dogdoor")->CurrentState(), "better1");
}

TEST_F(GameLogicLayerTest, ALayerThatWasNeverInitializedSavesNothing) {
  files.Put("\\userdata.txt", "begin\nend\n");
  files.Put("\\HelpSys.txt", "True\nTrue\nTrue\nTrue\nTrue\n");
  logic = std::make_shared<GameLogicLayer>(objects, host);
  logic->TurnOff();
  logic->Release();
  EXPECT_EQ(File("\\userdata.txt"), "begin\nend\n");
  EXPECT_EQ(File("\\HelpSys.txt"), "True\nTrue\nTrue\nTrue\nTrue\n");
}

TEST_F(GameLogicLayerTest, ReleaseLetsGoOfEverythingAndMayRunAgain) {
  Start();
  Send("cs_floor1hall1");
  std::weak_ptr<GameObjectInterface> hall = logic->CurrentScreen();
  std::weak_ptr<GameObjectInterface> intro = logic->PreviousScreen();
  logic->TurnOff();
  logic->Release();
  EXPECT_TRUE(hall.expired());
  EXPECT_TRUE(intro.expired());
  EXPECT_TRUE(objects.TimedObjects.Empty());
  EXPECT_TRUE(backend.timers.Running().empty());
  EXPECT_EQ(logic->Keeper(), nullptr);
  EXPECT_EQ(logic->Music(), nullptr);
  EXPECT_EQ(logic->BackContext(), 0);
  // Shared objects stay whole.
  EXPECT_EQ(Global("handcursor")->CurrentState(), "default");
  logic->Release();
}

TEST_F(GameLogicLayerTest, MessagesAreCarriedOutAtOnceAndStartNoTimer) {
  Start();
  const std::size_t timers = backend.timers.Running().size();
  for (const char* message :
       {"toscreen_tools_addglobalobj_asparetool", "cs_floor1hall1", "cursor_bandaid",
        "toobj_doctor_runstate_tryagain", "exitondemand", "nosuchverb_at_all"}) {
    Send(message);
    EXPECT_EQ(backend.timers.Running().size(), timers) << message;
  }
  EXPECT_EQ(Current(), "floor1hall1");
  EXPECT_TRUE(logic->DialogActive());
}

TEST_F(GameLogicLayerTest, TheirEndKillsTheirTimerAndSaysNothing) {
  Start();
  ObjectRef screen = logic->CurrentScreen();
  ASSERT_FALSE(backend.timers.Running().empty());
  ForgetTrace();
  logic.reset();
  EXPECT_TRUE(backend.timers.Running().empty());
  EXPECT_TRUE(screen->ObjectOn()) << "nothing was turned off";
  EXPECT_TRUE(trace.messages.empty());
  EXPECT_TRUE(trace.scripts.empty());
  EXPECT_EQ(File("\\userdata.txt"), "(none)");
  EXPECT_EQ(File("\\HelpSys.txt"), "(none)");
}

}  // namespace
}  // namespace quendle
