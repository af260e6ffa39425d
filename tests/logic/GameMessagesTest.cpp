// The game's own messages: each row carried out.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/ProcessEnds.h"
#include "logic/LogicBench.h"

namespace quendle {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct MessageBench : testing::Test, LogicBench {
  MessageBench() { Start(); }
  std::string FaultOf(const std::string& message) {
    return Fault([&] { Send(message); });
  }
};

using GameMessages = MessageBench;

// --- Cursors.

TEST_F(GameMessages, ACursorTakesThePlaceOfTheOldPointer) {
  Send("cursor_bandaid");
  EXPECT_EQ(logic->CurrentCursor(), "bandaid");
  EXPECT_EQ(logic->PreviousCursor(), "hand");
  EXPECT_TRUE(logic->SkipNextClick());
  EXPECT_THAT(Pointers(), ElementsAre("exitdialog", "exitbutton", "bandaidcursor"));
  EXPECT_FALSE(Global("handcursor")->ObjectOn());
  EXPECT_TRUE(Global("bandaidcursor")->ObjectOn());
}

TEST_F(GameMessages, EachCursorChangeKeepsTheOneBeforeAlsoFromHandToHand) {
  Send("cursor_bandaid");
  Send("cursor_hand");
  EXPECT_EQ(logic->PreviousCursor(), "bandaid");
  Send("cursor_hand");
  EXPECT_EQ(logic->PreviousCursor(), "hand");
}

TEST_F(GameMessages, ACursorWithoutAnObjectLeavesNoPointerUntilTheNextChange) {
  Send("cursor_nosuch");
  EXPECT_THAT(Pointers(), ElementsAre("exitdialog", "exitbutton"));
  Move(120, 120);
  Click(120, 120);  // kept from the screen, once
  Click(120, 120);
  EXPECT_THAT(trace.scripts, ElementsAre("start: nosuchmouseover", "start: nosuchmouseclick"));
  Send("cursor_hand");
  EXPECT_THAT(Pointers(), Contains("handcursor"));
  Move(120, 120);
  EXPECT_EQ(Global("handcursor")->xpos(), 104);
}

TEST_F(GameMessages, ACursorMessageWithoutANameIsFatal) {
  EXPECT_THAT(FaultOf("cursor_"), HasSubstr("cursor_"));
}

// --- Tools.

TEST_F(GameMessages, AnOfferedToolIsAskedOfTheToolsScreenWhichAnswersUpward) {
  Send("cs_emptyroom1");
  ForgetTrace();
  Send("tool_bandaid");
  ASSERT_GE(trace.messages.size(), 4u);
  EXPECT_EQ(trace.messages[0], "GameLogic: tool_bandaid");
  EXPECT_EQ(trace.messages[1], "tools: Addchild?_bandaid");
  EXPECT_EQ(trace.messages[2], "GameLogic: tool_yes_bandaid");
  EXPECT_EQ(trace.messages[3], "emptyroom1: toobj_bandaid_runscript_toolwon");
}

TEST_F(GameMessages, AWonToolRunsTheOfferingObjectsScriptAndHelpsOnce) {
  Send("cs_emptyroom1");
  Send("tool_bandaid");
  EXPECT_THAT(Tools(), Contains("bandaidtool"));
  EXPECT_EQ(DoctorState(), "helptoolitem");
  EXPECT_TRUE(logic->Help().m_bHelpToolItem);
  Send("toobj_doctor_changestate_default");
  Send("tool_yes_bandaid2");
  EXPECT_EQ(DoctorState(), "default");
}

TEST_F(GameMessages, TheMedicalBookGivesNoHelpAndLeavesItOpen) {
  Send("cs_floor1hall2");
  Send("tool_yes_MedicalBook");
  EXPECT_EQ(DoctorState(), "default");
  EXPECT_FALSE(logic->Help().m_bHelpToolItem);
  Send("tool_yes_anything");
  EXPECT_EQ(DoctorState(), "helptoolitem");
}

TEST_F(GameMessages, TheDoctorSaysWhyAToolIsRefused) {
  Send("cs_floor1hall2");
  Send("tool_alreadyhavetool");
  EXPECT_EQ(DoctorState(), "alreadyhaveone");
  Send("tool_toomany");
  EXPECT_EQ(DoctorState(), "toomany");
  Send("tool_medicalbook");  // held from the start
  EXPECT_EQ(DoctorState(), "alreadyhaveone");
}

TEST_F(GameMessages, AToolMessageOfFourWordsDoesNothing) {
  Send("cs_floor1hall2");
  const std::string before = Everything();
  for (const char* message : {"tool_a_b_c", "tool_yes_bandaid_x", "tool_toomany_a_b"}) {
    Send(message);
    EXPECT_EQ(Everything(), before) << message;
  }
  Send("tool_toomany_a");
  EXPECT_EQ(DoctorState(), "toomany");
}

TEST_F(GameMessages, AToolMessageThatLacksAWordIsFatal) {
  EXPECT_THAT(FaultOf("tool"), HasSubstr("tool"));
  EXPECT_THAT(FaultOf("tool_yes"), HasSubstr("tool_yes"));
}

TEST_F(GameMessages, AnOfferOfANameThatHoldsToolBounces) {
  Send("cs_floor1hall2");
  Send("tool_bandaidtool");
  EXPECT_THAT(Tools(), testing::Not(Contains("bandaidtool")));
  EXPECT_EQ(DoctorState(), "default");
}

// --- To a screen.

TEST_F(GameMessages, AMessagePassesToTheLiveScreensByTheirNames) {
  Send("toscreen_CURSORS__showobj__exitbutton_");
  EXPECT_TRUE(Child(logic->CursorsScreen(), "exitbutton")->Visible());
  Send("toscreen_currentscreen_hideobj_start");
  EXPECT_FALSE(Child(logic->CurrentScreen(), "start")->Visible());
  Send("toscreen_tools_toobj_leftarrow_changestate_better1");
  EXPECT_EQ(Child(logic->ToolsScreen(), "leftarrow")->CurrentState(), "better1");
  EXPECT_EQ(logic->Keeper()->Mementos().Count(), 0u);
}

TEST_F(GameMessages, AMessageToAScreenOutOfViewChangesWhatItWillBe) {
  Send("toscreen_dogroom_toobj_dog_changestate_won");
  EXPECT_EQ(Current(), "introscreen");
  ASSERT_EQ(logic->Keeper()->Mementos().Count(), 1u);
  Send("cs_dogroom");
  EXPECT_EQ(Child(logic->CurrentScreen(), "dog")->CurrentState(), "won");
}

TEST_F(GameMessages, AScreenInViewIsFirstPutBackToItsLastMementoAndThenSaved) {
  Send("cs_floor1hall1");
  ObjectRef hall = logic->CurrentScreen();
  Send("toscreen_floor1hall1_changestate_default");
  Child(hall, "tooldoor")->Setxpos(1);
  Send("toscreen_floor1hall1_hideobj_dogdoor");
  // The place went back to the memento of the first message; the hiding went into the second.
  EXPECT_EQ(Child(hall, "tooldoor")->xpos(), 200);
  Child(hall, "dogdoor")->SetVisible(true);
  logic->Keeper()->LoadScreen(hall);
  EXPECT_FALSE(Child(hall, "dogdoor")->Visible());
}

TEST_F(GameMessages, AMessageToASubgameOrTutorialBuildsOneAndThrowsItAway) {
  const std::string before = Everything();
  Send("toscreen_maze_changestate_default");
  Send("toscreen_tutorial1_changestate_default");
  EXPECT_EQ(Everything(), before);
}

TEST_F(GameMessages, AMessageTakesACachedScreensFreedomForGood) {
  Send("cs_floor1hall1");
  Send("cs_floor1hall2");  // introscreen is free now
  auto free = [&] { return logic->Keeper()->Cache().Item(1).m_bFreeToRelease; };
  EXPECT_TRUE(free());
  Send("toscreen_introscreen_hideobj_start");
  EXPECT_FALSE(free());
}

TEST_F(GameMessages, AMessageToAnUnknownScreenIsFatalAndNamesTheNearest) {
  EXPECT_THAT(FaultOf("toscreen_dogrom_x"),
              testing::AllOf(HasSubstr("dogrom"), HasSubstr("did you mean \"dogroom\"")));
  EXPECT_NE(FaultOf("toscreen_dogroom"), "(none)");
}

TEST_F(GameMessages, TheRowsOfTheFirstWordsComeBeforeTheContainmentTests) {
  // The subgame's end inside a message to a screen goes to that screen first, and climbs again.
  Send("cs_floor1hall1");
  Send("cs_dogroom");
  Send("toscreen_floor1hall2_hideobj_resettools");
  EXPECT_EQ(logic->CurrentCursor(), "hand");
  EXPECT_EQ(Current(), "dogroom");
}

// --- Subgames.

TEST_F(GameMessages, ASubgameReturnsToTheRoomAndToTheToolInTheHand) {
  Send("cs_dogroom");
  Send("cursor_bandaid");
  Click(0, 0);
  Click(330, 330);  // the dog's script starts the subgame
  EXPECT_EQ(Current(), "maze");
  EXPECT_EQ(logic->CurrentCursor(), "hand");
  EXPECT_EQ(logic->ToolsState(), "off");
  Send("subgame_won");
  EXPECT_EQ(Current(), "dogroom");
  EXPECT_EQ(logic->CurrentCursor(), "bandaid");
  EXPECT_EQ(logic->ToolsState(), "on");
  EXPECT_FALSE(logic->SkipNextClick());
  EXPECT_EQ(Child(logic->CurrentScreen(), "dog")->CurrentState(), "won");
}

TEST_F(GameMessages, ALostSubgameTellsThePatient) {
  Send("cs_dogroom");
  Send("cursor_bandaid");
  Send("subgame_maze");
  Send("subgame_LOST");
  EXPECT_EQ(Current(), "dogroom");
  EXPECT_EQ(Child(logic->CurrentScreen(), "dog")->CurrentState(), "lost");
  EXPECT_FALSE(logic->SkipNextClick());
}

TEST_F(GameMessages, TheEndOfASubgameAloneKeepsTheNextClick) {
  Send("cs_dogroom");
  Send("cursor_bandaid");
  Send("subgame_maze");
  Send("xSubgameDonex");
  EXPECT_EQ(Current(), "dogroom");
  EXPECT_TRUE(logic->SkipNextClick());
}

TEST_F(GameMessages, WithAPictureThePersonGoesWhileASubgameRuns) {
  settings.PersonalizeOn = true;
  Send("cs_dogroom");
  Send("cursor_bandaid");
  ForgetTrace();
  Send("subgame_maze");
  EXPECT_THAT(
      std::vector<std::string>(trace.messages.begin(), trace.messages.begin() + 3),
      ElementsAre("GameLogic: subgame_maze", "GameLogic: toscreen_cursors_hideobj_personcursor",
                  "cursors: hideobj_personcursor"));
  EXPECT_TRUE(Sent("GameLogic: cs_maze"));
  ForgetTrace();
  Send("subgame_won");
  auto at = [&](const std::string& line) {
    return std::ranges::find(trace.messages, line) - trace.messages.begin();
  };
  EXPECT_LT(at("GameLogic: toscreen_cursors_showobj_personcursor"), at("GameLogic: subgamedone"));
  EXPECT_LT(at("GameLogic: subgamedone"), at("dogroom: totype_patient_useraction_gamewon"));
  EXPECT_TRUE(Sent("dogroom: totype_patient_useraction_gamewon"));
}

TEST_F(GameMessages, ASubgameFromAScreenWithoutToolsGivesTheHandBack) {
  Send("cs_credits");
  Send("cursor_bandaid");
  Send("subgame_maze");
  Send("subgamedone");
  EXPECT_EQ(Current(), "credits");
  EXPECT_EQ(logic->CurrentCursor(), "hand");
}

TEST_F(GameMessages, ASubgameEnteredBeforeAnyCursorChangeCannotGiveOneBack) {
  Send("cs_floor1hall1");
  Send("subgame_mazeroom");
  EXPECT_EQ(logic->PreviousCursor(), "");
  EXPECT_NE(FaultOf("subgamedone"), "(none)");
}

TEST_F(GameMessages, TheEndOfASubgameWithoutAPreviousScreenIsFatal) {
  EXPECT_NE(FaultOf("subgamedone"), "(none)");
}

// --- Tools taken away.

TEST_F(GameMessages, ResettingSparesHandAndBookAndResettingAllSparesTheHand) {
  for (const char* tool : {"bandaidtool", "asparetool"}) {
    Send(std::string("toscreen_tools_addglobalobj_") + tool);
  }
  Send("cursor_bandaid");
  Send("xresettoolsx");
  EXPECT_THAT(Tools(), ElementsAre("handtool", "leftarrow", "rightarrow", "medicalbooktool"));
  EXPECT_EQ(logic->CurrentCursor(), "hand");
  Send("toscreen_tools_addglobalobj_bandaidtool");
  Send("cursor_bandaid");
  Send("pleaseResetAllTools");
  EXPECT_THAT(Tools(), ElementsAre("handtool", "leftarrow", "rightarrow"));
  EXPECT_EQ(logic->CurrentCursor(), "hand");
}

TEST_F(GameMessages, TheToolInTheHandIsTakenFromTheBar) {
  Send("toscreen_tools_addglobalobj_bandaidtool");
  Send("cursor_bandaid");
  Send("removeobj_thecurrenttool");
  EXPECT_THAT(Tools(), testing::Not(Contains("bandaidtool")));
  EXPECT_EQ(logic->CurrentCursor(), "hand");
  EXPECT_EQ(logic->PreviousCursor(), "hand");
  EXPECT_THAT(Pointers(), Contains("handcursor"));
  EXPECT_THAT(Pointers(), testing::Not(Contains("bandaidcursor")));
}

TEST_F(GameMessages, WithTheHandInUseTheHandToolIsTakenAway) {
  Send("removeobj_currenttool");
  EXPECT_THAT(Tools(), ElementsAre("leftarrow", "rightarrow", "medicalbooktool"));
}

TEST_F(GameMessages, AnotherRemovalDoesNothing) {
  const std::string before = Everything();
  Send("removeobj_handtool");
  EXPECT_EQ(Everything(), before);
}

// --- The rest.

TEST_F(GameMessages, BuyingOpensThePageAndThenDeactivates) {
  Send("xbuynowx");
  EXPECT_THAT(host.calls, ElementsAre("OpenProductPage", "Deactivate"));
}

TEST_F(GameMessages, AMessageToAnObjectGoesWholeToTheCurrentScreen) {
  Send("cs_dogroom");
  Send("TOOBJ_dog_changestate_won");
  EXPECT_EQ(Child(logic->CurrentScreen(), "dog")->CurrentState(), "won");
}

TEST_F(GameMessages, PointerMessagesReadSixteenBitNumbers) {
  Send("mousemove_120_130");
  EXPECT_THAT(trace.scripts, ElementsAre("start: handmouseover"));
  EXPECT_EQ(Global("handcursor")->xpos(), 104);
  EXPECT_EQ(Global("handcursor")->ypos(), 122);
  Send("mouseclick_120_130");
  EXPECT_EQ(Current(), "floor1hall1");
  EXPECT_NE(FaultOf("mouseclick_a_1"), "(none)");
  EXPECT_NE(FaultOf("mouseclick_1"), "(none)");
  EXPECT_NE(FaultOf("mousemove_40000_1"), "(none)");
}

TEST_F(GameMessages, AHideThatClimbedFromElsewhereReachesTheCurrentScreen) {
  bool unused = false;
  ObjectRef start = Child(logic->CurrentScreen(), "start");
  logic->HandleMessage("hideobj_start", nullptr, false, unused);
  EXPECT_TRUE(start->Visible());
  logic->HandleMessage("hideobj_start", logic->CurrentScreen().get(), false, unused);
  EXPECT_TRUE(start->Visible());
  logic->HandleMessage("hideobj_start", logic->ToolsScreen().get(), false, unused);
  EXPECT_FALSE(start->Visible());
}

TEST_F(GameMessages, AHideOfAChildClimbsAndDoesNotComeBack) {
  Send("toscreen_currentscreen_hideobj_start");
  EXPECT_THAT(trace.messages,
              ElementsAre("GameLogic: toscreen_currentscreen_hideobj_start",
                          "introscreen: hideobj_start", "GameLogic: hideobj_start"));
}

TEST_F(GameMessages, AskingToExitShowsTheDialogsUntilItIsEnded) {
  Send("ExitOnDemand");
  EXPECT_TRUE(logic->DialogActive());
  EXPECT_TRUE(Child(logic->CursorsScreen(), "exitdialog")->Visible());
  EXPECT_FALSE(Child(logic->CursorsScreen(), "exitbutton")->Visible());
  Send("endexitondemand");
  EXPECT_FALSE(logic->DialogActive());
  EXPECT_TRUE(Child(logic->CursorsScreen(), "exitdialog")->Visible());
}

TEST_F(GameMessages, ExitingEndsTheProcessWithAnOrderlyEndToFollow) {
  try {
    Send("exitgame");
    FAIL() << "the game goes on";
  } catch (const ProcessEnds& end) {
    EXPECT_TRUE(end.shut_down_game);
  }
  // The orderly end is the frame's: nothing was saved on this stack.
  EXPECT_EQ(File("\\userdata.txt"), "(none)");
  EXPECT_NE(logic->CurrentScreen(), nullptr);
}

TEST_F(GameMessages, ResettingDeletesTheSavedGameAndTheAutosave) {
  files.Put("\\userdata.txt", "begin\nend\n");
  logic->Autosave();
  ASSERT_NE(File("\\autosave.txt"), "(none)");
  Send("resetgame");
  EXPECT_EQ(File("\\userdata.txt"), "(none)");
  EXPECT_EQ(File("\\autosave.txt"), "(none)");
  EXPECT_TRUE(logic->GameReset());
  Send("resetgame");  // without the files as well
}

TEST_F(GameMessages, AnUnknownMessageDoesNothing) {
  const std::string before = Everything();
  for (const char* message : {"hello", "xcursor_bandaid", "exitgamex", "css_dogroom"}) {
    Send(message);
    EXPECT_EQ(Everything(), before) << message;
  }
}

TEST_F(GameMessages, AnEmptyMessageIsFatal) { EXPECT_NE(FaultOf("__"), "(none)"); }

}  // namespace
}  // namespace quendle
