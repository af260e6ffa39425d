// Changes of screen, the way back, and the one-time help.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "logic/LogicBench.h"

namespace quendle {
namespace {

using testing::HasSubstr;

struct ChangeBench : testing::Test, LogicBench {
  ChangeBench() { Start(); }
  std::string FaultOf(const std::string& message) {
    return Fault([&] { Send(message); });
  }
  bool Free(const std::string& name) const {
    for (const auto& entry : logic->Keeper()->Cache()) {
      if (EqualsNoCase(entry.key, name)) return entry.value.m_bFreeToRelease;
    }
    return false;
  }
};

using ScreenChange = ChangeBench;

TEST_F(ScreenChange, TheOldScreenIsTurnedOffSavedAndKeptAsThePreviousOne) {
  ObjectRef intro = logic->CurrentScreen();
  Child(intro, "start")->Setxpos(7);
  Send("cs_floor1hall1");
  EXPECT_EQ(Current(), "floor1hall1");
  EXPECT_EQ(logic->PreviousScreen(), intro);
  EXPECT_FALSE(intro->ObjectOn());
  EXPECT_TRUE(logic->CurrentScreen()->ObjectOn());
  ASSERT_EQ(logic->Keeper()->Mementos().Count(), 1u);
  EXPECT_EQ(logic->Keeper()->Mementos().Item(1)->Children().Item("start")->xpos(), 7);
}

TEST_F(ScreenChange, AScreenIsFreedOneChangeLate) {
  Send("cs_floor1hall1");
  EXPECT_FALSE(Free("introscreen"));
  Send("cs_dogroom");
  EXPECT_TRUE(Free("introscreen"));
  EXPECT_FALSE(Free("floor1hall1"));
}

TEST_F(ScreenChange, TheCacheOfFiveCountsToolsAndCursors) {
  for (const char* name : {"floor1hall1", "dogroom", "emptyroom1", "floor1hall2"}) {
    Send(std::string("cs_") + name);
  }
  std::vector<std::string> names = logic->Keeper()->Cache().Keys();
  EXPECT_THAT(names,
              testing::ElementsAre("tools", "cursors", "dogroom", "emptyroom1", "floor1hall2"));
}

// A screen that is entered from itself is the one left as well, and is freed as that.
TEST_F(ScreenChange, AScreenThatIsHeldMakesNoRoomThoughItIsFree) {
  Send("cs_dogroom");
  Send("toscreen_floor1hall1_hideobj_x");
  Send("cs_dogroom");
  Send("toscreen_floor1hall2_hideobj_x");
  Send("cs_credits");
  EXPECT_TRUE(Free("dogroom"));
  EXPECT_EQ(logic->Keeper()->Cache().Count(), 6u) << "nothing could go";
  Send("screenprevious");
  EXPECT_EQ(Current(), "dogroom");
  EXPECT_NE(Child(logic->CurrentScreen(), "dog"), nullptr);
}

TEST_F(ScreenChange, TheScreenInViewMakesNoRoomThoughItIsFree) {
  Send("cs_dogroom");
  Send("cs_dogroom");
  Send("screenprevious");
  ASSERT_EQ(Current(), "dogroom");
  ASSERT_TRUE(Free("dogroom"));
  for (const char* name : {"floor1hall1", "floor1hall2", "credits"}) {
    Send(std::string("toscreen_") + name + "_hideobj_x");
  }
  EXPECT_NE(Child(logic->CurrentScreen(), "dog"), nullptr);
  EXPECT_EQ(logic->Keeper()->Cache().Find("dogroom")->m_ptrGameObject, logic->CurrentScreen());
}

TEST_F(ScreenChange, ANameWithHallOrRoomShowsTheToolsAndKeepsTheCursor) {
  Send("cursor_bandaid");
  for (const char* name : {"floor1hall1", "dogroom"}) {
    Send("cs_credits");
    EXPECT_EQ(logic->ToolsState(), "off");
    Send("cursor_bandaid");
    ASSERT_EQ(logic->CurrentCursor(), "bandaid");
    Send(std::string("cs_") + name);
    EXPECT_EQ(logic->ToolsState(), "on") << name;
    EXPECT_EQ(logic->CurrentCursor(), "bandaid") << name;
  }
}

TEST_F(ScreenChange, AnotherNameHidesTheToolsTakesTheHandAndKeepsTheNextClick) {
  Send("cs_dogroom");
  Send("cursor_bandaid");
  Click(0, 0);
  ASSERT_FALSE(logic->SkipNextClick());
  Send("cs_credits");
  EXPECT_EQ(logic->ToolsState(), "off");
  EXPECT_EQ(logic->CurrentCursor(), "hand");
  EXPECT_EQ(logic->PreviousCursor(), "bandaid");
  EXPECT_TRUE(logic->SkipNextClick());
}

TEST_F(ScreenChange, TheToolsScreenStaysAliveWhileItIsOff) {
  ObjectRef tools = logic->ToolsScreen();
  Send("cs_floor1hall1");
  Send("cs_credits");
  EXPECT_TRUE(tools->ObjectOn());
  EXPECT_EQ(logic->ToolsScreen(), tools);
}

TEST_F(ScreenChange, AChangeToTheScreenInViewComesBackToIt) {
  Send("cs_floor1hall1");
  ObjectRef hall = logic->CurrentScreen();
  Send("cs_floor1hall1");
  EXPECT_EQ(logic->CurrentScreen(), hall);
  EXPECT_EQ(logic->PreviousScreen(), hall);
  EXPECT_TRUE(hall->ObjectOn());
}

TEST_F(ScreenChange, AnUnknownScreenIsFatalAndTheNearestNameIsTold) {
  EXPECT_THAT(FaultOf("cs_dogrom"), HasSubstr("did you mean \"dogroom\""));
  EXPECT_NE(FaultOf("cs"), "(none)");
}

TEST_F(ScreenChange, TheWayBackGoesOneScreenAndNoFurther) {
  Send("cs_floor1hall1");
  Send("cs_credits");
  ObjectRef credits = logic->CurrentScreen();
  const std::string help = Help();
  Send("xScreenPreviousx");
  EXPECT_EQ(Current(), "floor1hall1");
  EXPECT_EQ(logic->PreviousScreen(), nullptr);
  EXPECT_TRUE(logic->CurrentScreen()->ObjectOn());
  EXPECT_FALSE(credits->ObjectOn());
  EXPECT_TRUE(Free("credits"));
  EXPECT_EQ(logic->ToolsState(), "off");  // as it was in the credits
  EXPECT_EQ(Help(), help);
  EXPECT_THAT(FaultOf("screenprevious"), HasSubstr("no previous screen"));
}

TEST_F(ScreenChange, TheWayBackLoadsTheMementoOfTheScreenThatReturns) {
  Send("cs_floor1hall1");
  Send("cs_credits");
  Child(logic->PreviousScreen(), "dogdoor")->Setxpos(1);
  Send("screenprevious");
  EXPECT_EQ(Child(logic->CurrentScreen(), "dogdoor")->xpos(), 100);
}

TEST_F(ScreenChange, ATutorialLivesOnAsThePreviousScreenUntilTheNextChange) {
  Send("cs_tutorial1");
  std::weak_ptr<GameObjectInterface> tutorial = logic->CurrentScreen();
  Send("cs_floor1hall1");
  EXPECT_FALSE(tutorial.expired());
  Send("cs_floor1hall2");
  EXPECT_TRUE(tutorial.expired());
}

// --- One-time help, by the name in the message. Bits: book, patient, tool room, elevator, item.

struct HelpCase {
  const char* name;
  const char* help;
  const char* doctor;
};

class OneTimeHelp : public testing::TestWithParam<HelpCase> {};

TEST_P(OneTimeHelp, GoesByTheWordsInTheName) {
  LogicBench bench;
  bench.Start();
  EXPECT_EQ(bench.Help(), "00000");
  bench.Send(std::string("cs_") + GetParam().name);
  EXPECT_EQ(bench.Help(), GetParam().help);
  EXPECT_EQ(bench.DoctorState(), GetParam().doctor);
}

INSTANTIATE_TEST_SUITE_P(
    Names, OneTimeHelp,
    testing::Values(HelpCase{"FLOOR1hall1", "10000", "helpmedicalbook"},
                    HelpCase{"floor1hall2", "00000", "default"},
                    HelpCase{"dogroom", "01000", "helppatientroom"},
                    HelpCase{"credits", "01000", "helppatientroom"},
                    // Any subgame or tutorial without the words counts as a patient's room.
                    HelpCase{"maze", "01000", "helppatientroom"},
                    HelpCase{"tutorial1", "01000", "helppatientroom"},
                    HelpCase{"emptyroom1", "00100", "helptoolroom"},
                    HelpCase{"emptygeneralroom", "00000", "default"},
                    HelpCase{"elevator", "00010", "helpelevator"},
                    HelpCase{"emptyelevator", "00100", "helptoolroom"},
                    HelpCase{"introscreen", "00000", "default"}));

TEST_F(ScreenChange, HelpIsGivenOnce) {
  Send("cs_dogroom");
  EXPECT_EQ(DoctorState(), "helppatientroom");
  Send("cs_floor1hall2");
  ForgetTrace();
  Send("cs_dogroom");
  EXPECT_EQ(DoctorState(), "default");
  EXPECT_FALSE(Sent("dogroom: toobj_doctor_runstate_helppatientroom"));
}

TEST_F(ScreenChange, HelpComesAfterTheScreenIsOnAndTheCursorChanged) {
  Send("cs_elevator");
  EXPECT_EQ(trace.messages.back(), "doctor: runstate_helpelevator");
  EXPECT_EQ(trace.messages.front(), "GameLogic: cs_elevator");
  EXPECT_TRUE(Sent("GameLogic: cursor_hand"));
}

TEST_F(ScreenChange, APassingStateOfTheDoctorEndsWithTheScreen) {
  Send("cs_floor1hall1");
  EXPECT_EQ(DoctorState(), "helpmedicalbook");
  Send("cs_credits");
  Send("screenprevious");
  EXPECT_EQ(DoctorState(), "default");
}

// --- Long sessions.

TEST_F(ScreenChange, ThousandsOfChangesAndLookupsKeepTheGameAlive) {
  watch.tracer = nullptr;
  const char* names[] = {"cs_floor1hall1", "cs_dogroom", "cs_floor1hall2",
                         "cs_emptyroom1",  "cs_maze",    "cs_credits"};
  for (int i = 0; i < 2000; ++i) Send(names[i % 6]);
  // The rest of the lookups, without the building of screens.
  for (int i = 0; i < 40000; ++i) logic->Keeper()->GetScreen("tools");
  for (const auto& entry : logic->Keeper()->Cache()) {
    EXPECT_GE(entry.value.m_nAge, 0) << entry.key;
  }
  Send("cs_dogroom");
  EXPECT_EQ(Current(), "dogroom");
  EXPECT_LE(logic->Keeper()->Cache().Count(), 6u);
  for (const TimerInfo& timer : backend.timers.Running()) EXPECT_LT(timer.id, 100);
}

TEST_F(ScreenChange, TimerIdsAreReusedHoweverOftenAnAnimationStarts) {
  watch.tracer = nullptr;
  PutObject(files, {.type = "button",
                    .name = "blinker",
                    .width = 10,
                    .height = 10,
                    .states = {{.name = "default", .animation = "slow"},
                               {.name = "other", .animation = "fast"}},
                    .animations = {{.name = "slow", .interval = 200, .loop = "loop"},
                                   {.name = "fast", .interval = 100, .loop = "loop"}}});
  ObjectRef blinker = Make("blinker");
  blinker->TurnOn();
  const std::int32_t id = blinker->TimerID();
  EXPECT_EQ(id, 2);  // behind that of the drawing
  for (int i = 0; i < 40000; ++i) {
    blinker->ProcessState(i % 2 == 0 ? "other" : "default");
    ASSERT_EQ(blinker->TimerID(), id);
  }
  EXPECT_EQ(objects.TimedObjects.Count(), 1u);
  EXPECT_EQ(backend.timers.Running().size(), 2u);
  blinker->TurnOff();
  EXPECT_TRUE(objects.TimedObjects.Empty());
}

}  // namespace
}  // namespace quendle
