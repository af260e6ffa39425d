// What happens when a message, sent by a script, takes away what is being walked over or run.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/ProcessEnds.h"
#include "logic/LogicBench.h"

namespace quendle {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

struct LifetimeBench : testing::Test, LogicBench {
  // Gives a button of the clinic other statements for a click; before Start.
  void Script(const std::string& button, const std::string& statements) {
    PutObject(files, ClickButton(button, statements));
  }
  std::string FaultOf(const std::string& message) {
    return Fault([&] { Send(message); });
  }
  std::vector<std::string> Cached() const { return logic->Keeper()->Cache().Keys(); }
};

using Lifetimes = LifetimeBench;

TEST_F(Lifetimes, AScriptMayLeaveTheScreenTwiceAndDestroyItsOwnScreen) {
  Script("dogdoor",
         "mtp cs_dogroom\nmtp cs_emptyroom1\nchange better1\nrunstate better1\n"
         "mtp playmusic\n");
  Start();
  Send("cs_floor1hall1");
  std::weak_ptr<GameObjectInterface> hall = logic->CurrentScreen();
  // The hall becomes the oldest entry of a full cache.
  Send("toscreen_introscreen_changestate_default");
  Send("toscreen_introscreen_changestate_default");
  ForgetTrace();
  Click(120, 120);
  EXPECT_EQ(Current(), "emptyroom1");
  EXPECT_EQ(Previous(), "dogroom");
  EXPECT_THAT(Cached(), Not(Contains("floor1hall1")));
  EXPECT_TRUE(hall.expired());
  // A released object has no parent: the rest of its script reaches nobody.
  EXPECT_FALSE(Sent("GameLogic: playmusic"));
}

TEST_F(Lifetimes, TheWalkGoesOnOverTheOldScreensLaterChildren) {
  Start();
  Send("cs_floor1hall1");
  Child(logic->CurrentScreen(), "tooldoor")->Setxpos(100);
  Click(120, 120);
  EXPECT_EQ(Current(), "emptyroom1");
  EXPECT_EQ(Previous(), "dogroom");
}

TEST_F(Lifetimes, AnObjectMayRemoveItselfInItsOwnScript) {
  Script("dogdoor", "mtp removeobj_dogdoor\nchange better1\n");
  Start();
  Send("cs_floor1hall1");
  std::weak_ptr<GameObjectInterface> door = Child(logic->CurrentScreen(), "dogdoor");
  Click(120, 120);
  EXPECT_THAT(ChildNames(logic->CurrentScreen()), ElementsAre("doctor", "tooldoor"));
  EXPECT_TRUE(door.expired());
}

TEST_F(Lifetimes, AnObjectMayRemoveItselfWhenAMessageIsDelivered) {
  PutObject(files, {.type = "button",
                    .name = "dogdoor",
                    .states = {{.name = "default", .script = "s"}, {.name = "better1"}},
                    .scripts = {{"s", "mtp removeobj_dogdoor\nchange better1\n"}}});
  Start();
  Send("cs_floor1hall1");
  Send("toobj_dogdoor_useraction_x");
  EXPECT_EQ(Child(logic->CurrentScreen(), "dogdoor"), nullptr);
}

TEST_F(Lifetimes, AnAnimationThatEndsMayStartAnotherAndItsTimersLeaveNoTrace) {
  PutObject(files, {.type = "patient",
                    .name = "dog",
                    .width = 10,
                    .height = 10,
                    .states = {{.name = "default", .animation = "first"},
                               {.name = "default-owww", .animation = "second"}},
                    .animations = {{.name = "first"}, {.name = "second"}}});
  Start();
  Send("cs_dogroom");
  Tick(1000);
  EXPECT_TRUE(objects.TimedObjects.Empty());
  Send("toobj_dog_runstate_default-owww");
  ASSERT_EQ(objects.TimedObjects.Count(), 1u);
  Tick(1000);
  EXPECT_EQ(Child(logic->CurrentScreen(), "dog")->CurrentState(), "default");
  EXPECT_EQ(DoctorState(), "startover");
  EXPECT_TRUE(objects.TimedObjects.Empty());
  EXPECT_EQ(backend.timers.Running().size(), 1u);  // that of the drawing
}

TEST_F(Lifetimes, ASharedDoctorOutlivesTheScreenThatHeldHim) {
  ObjectText doctor{.type = "doctor",
                    .name = "doctor",
                    .states = {{.name = "default", .script = "s"}},
                    .scripts = {{"s", "if action = hello\nmtp playmusic\nendif\n"}}};
  PutObject(files, doctor);
  for (const char* name : {"p1room", "p2room", "p3room", "p4room"}) {
    PutScreen(files, {.type = "hall", .name = name});
  }
  Start();
  Send("cs_floor1hall2");
  Send("toobj_doctor_useraction_hello");
  EXPECT_TRUE(Sent("GameLogic: playmusic"));
  for (const char* name : {"p1room", "p2room", "p3room", "p4room"}) {
    Send(std::string("cs_") + name);
  }
  ASSERT_THAT(Cached(), Not(Contains("floor1hall2")));
  ForgetTrace();
  Send("toobj_doctor_useraction_hello");
  EXPECT_THAT(trace.scripts, Contains("doctor: hello"));
  EXPECT_FALSE(Sent("GameLogic: playmusic"));
}

TEST_F(Lifetimes, AScreenMayBePutBackToItsMementoFromItsOwnWalk) {
  Script("dogdoor", "mtp toscreen_floor1hall1_changestate_default\n");
  Start();
  Send("cs_floor1hall1");
  Send("toscreen_currentscreen_addglobalobj_bandaidtool");
  Send("cs_floor1hall2");
  Send("cs_floor1hall1");
  Send("toscreen_currentscreen_removeobj_bandaidtool");
  ASSERT_EQ(Child(logic->CurrentScreen(), "bandaidtool"), nullptr);
  ForgetTrace();
  Click(120, 120);
  // It came back during the walk, at the end of the children, and was visited.
  EXPECT_NE(Child(logic->CurrentScreen(), "bandaidtool"), nullptr);
  EXPECT_EQ(trace.scripts.back(), "bandaidtool: handmouseclicknot");
}

TEST_F(Lifetimes, ATutorialThatIsBuiltForAMessageMaySendTheGameElsewhere) {
  Start();
  Send("toscreen_tutorial1_cs_floor1hall1");
  EXPECT_EQ(Current(), "floor1hall1");
}

TEST_F(Lifetimes, AScriptMayGoBackAndThenHaveItsScreenEvicted) {
  Script("dogdoor",
         "mtp screenprevious\nmtp toscreen_credits_changestate_default\nchange better1\n");
  Start();
  Send("cs_floor1hall1");
  Send("toscreen_introscreen_changestate_default");
  Send("cs_floor1hall1");
  Send("toscreen_dogroom_changestate_default");
  Click(120, 120);
  EXPECT_NE(logic->CurrentScreen(), nullptr);
  EXPECT_THAT(Cached(), Contains("credits"));
}

TEST_F(Lifetimes, ADialogMayChangeThePointerThatStandsBesideIt) {
  PutObject(files, {.type = "dialog",
                    .name = "exitdialog",
                    .width = 200,
                    .height = 100,
                    .states = {{.name = "default", .script = "s"}},
                    .scripts = {{"s", OnClick("mtp cursor_bandaid\n")}}});
  Start();
  Send("exitondemand");
  Click(310, 210);
  EXPECT_THAT(Pointers(), ElementsAre("exitdialog", "exitbutton", "bandaidcursor"));
}

TEST_F(Lifetimes, AWonSubgameMayLeadToAnotherOneWhileTheFirstStillRunsItsScript) {
  PutObject(files, ClickButton("win", "mtp subgame_won\nchange better1\nmtp playmusic\n"));
  PutObject(files, {.type = "subgame", .name = "maze", .children = {ObjectPath("win")}});
  PutObject(files, {.type = "patient",
                    .name = "dog",
                    .states = {{.name = "default", .script = "s"}},
                    .scripts = {{"s", "if action = gamewon\nmtp subgame_mazeroom\nendif\n"}}});
  Start();
  Send("cs_dogroom");
  Send("cursor_bandaid");
  Send("subgame_maze");
  std::weak_ptr<GameObjectInterface> maze = logic->CurrentScreen();
  Click(10, 10);  // kept
  Click(10, 10);
  EXPECT_EQ(Current(), "mazeroom");
  EXPECT_EQ(Previous(), "dogroom");
  EXPECT_TRUE(maze.expired());
}

// --- Circles end with a message and not with the stack.

TEST_F(Lifetimes, AClickThatClicksItselfIsFatalAndNamed) {
  Script("start", "mtp mouseclick_120_120\n");
  Start();
  EXPECT_THAT(FaultOf("mouseclick_120_120"), HasSubstr("mouseclick_120_120"));
  EXPECT_EQ(watch.depth.Depth(), 0);
}

TEST_F(Lifetimes, ObjectsThatActOnEachOtherForEverAreFatal) {
  for (const auto& [mine, other] :
       {std::pair{"dogdoor", "tooldoor"}, std::pair{"tooldoor", "dogdoor"}}) {
    PutObject(files, {.type = "button",
                      .name = mine,
                      .states = {{.name = "default", .script = "s"}},
                      .scripts = {{"s", std::string("mtp toobj_") + other + "_useraction_x\n"}}});
  }
  Start();
  Send("cs_floor1hall1");
  EXPECT_THAT(FaultOf("toobj_dogdoor_useraction_x"), HasSubstr("useraction_x"));
}

TEST_F(Lifetimes, AChildListThatNamesItsOwnObjectIsFatal) {
  PutScreen(files, {.type = "hall", .name = "mirrorroom", .children = {ObjectPath("mirrorroom")}});
  Start();
  EXPECT_THAT(FaultOf("cs_mirrorroom"), HasSubstr("mirrorroom"));
  EXPECT_EQ(Current(), "introscreen");
}

TEST_F(Lifetimes, AnObjectCannotBecomeItsOwnChild) {
  Start();
  Send("cs_floor1hall1");
  EXPECT_THAT(FaultOf("toobj_doctor_addglobalobj_doctor"), HasSubstr("doctor"));
}

// --- Faults in the middle of an event.

TEST_F(Lifetimes, AScreenThatFailsToLoadIsNowhereToBeFound) {
  files.Remove("C:\\game\\Info\\dog\\data.txt");
  Start();
  Send("cs_floor1hall1");
  ObjectRef hall = logic->CurrentScreen();
  EXPECT_THAT(Fault([&] { Click(120, 120); }), HasSubstr("Info\\dog\\data.txt"));
  EXPECT_EQ(logic->CurrentScreen(), hall);
  EXPECT_THAT(Cached(), Not(Contains("dogroom")));
  EXPECT_EQ(watch.depth.Depth(), 0);
}

TEST_F(Lifetimes, NothingOfAScriptRunsBehindTheEndOfTheGame) {
  Script("dogdoor", "mtp exitgame\nmtp playmusic\nchange better1\n");
  Start();
  Send("cs_floor1hall1");
  ObjectRef door = Child(logic->CurrentScreen(), "dogdoor");
  ForgetTrace();
  const long runs = std::ranges::count(graphs.Last().calls, "Run");
  EXPECT_THROW(Click(120, 120), ProcessEnds);
  EXPECT_EQ(door->CurrentState(), "default");
  EXPECT_EQ(std::ranges::count(graphs.Last().calls, "Run"), runs);
  EXPECT_EQ(graphs.Last().calls.back(), "Stop");
  // The sibling behind it was not visited.
  EXPECT_THAT(trace.scripts, Not(Contains(HasSubstr("tooldoor"))));
  EXPECT_EQ(watch.depth.Depth(), 0);
}

TEST_F(Lifetimes, SharedObjectsThatHoldEachOtherAreReleasedAtTheEnd) {
  Start();
  // The hand holds the book; the book can't hold the hand as well.
  Global("handtool")->AddChildObject(Global("medicalbooktool"));
  EXPECT_THAT(Fault([&] { Global("medicalbooktool")->AddChildObject(Global("handtool")); }),
              HasSubstr("handtool"));
  objects.ReleasingGlobals = true;
  for (auto& entry : objects.GlobalObjects) entry.value->Release(true);
  objects.ReleasingGlobals = false;
  EXPECT_TRUE(Global("handtool")->Children().Empty());
  EXPECT_EQ(Global("medicalbooktool")->CurrentState(), "");
}

}  // namespace
}  // namespace quendle
