// The game's own messages, asked whether they could be carried out.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "logic/LogicBench.h"

namespace quendle {
namespace {

struct AskBench : testing::Test, LogicBench {
  AskBench() {
    Start();
    Send("cs_floor1hall1");
  }
};

using VerifyingMessages = AskBench;

struct AskCase {
  const char* message;
  bool answer;
};

class VerifyingRow : public testing::TestWithParam<AskCase> {};

TEST_P(VerifyingRow, AnswersAndChangesNothing) {
  LogicBench bench;
  bench.Start();
  bench.Send("cs_floor1hall1");
  bench.Send("cursor_bandaid");
  bench.files.Put("\\userdata.txt", "begin\nend\n");
  const std::string before = bench.Everything();
  // Whatever the answer was before.
  EXPECT_EQ(bench.Ask(GetParam().message, true), GetParam().answer);
  EXPECT_EQ(bench.Ask(GetParam().message, false), GetParam().answer);
  EXPECT_EQ(bench.Everything(), before);
  EXPECT_EQ(bench.File("\\userdata.txt"), "begin\nend\n");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, VerifyingRow,
    testing::Values(
        AskCase{"cursor_HAND", true}, AskCase{"cursor_nosuch", false}, AskCase{"tool_nosuch", true},
        AskCase{"toscreen_dogroom_x", true}, AskCase{"toscreen_currentscreen_x", false},
        AskCase{"toscreen_tools_x", true}, AskCase{"toscreen_attic_x", false},
        AskCase{"subgame_MAZE", true}, AskCase{"subgame_won", false},
        AskCase{"subgame_lost", false}, AskCase{"resetalltools", true}, AskCase{"resettools", true},
        AskCase{"buynow", true}, AskCase{"screenprevious", true}, AskCase{"cs_dogroom", true},
        AskCase{"cs_attic", false}, AskCase{"removeobj_currenttool", true},
        AskCase{"removeobj_x", true}, AskCase{"hideobj_dogdoor", true},
        AskCase{"toobj_nosuch_x", true}, AskCase{"playmusic", true}, AskCase{"stopmusic", true},
        AskCase{"resetgame", true}, AskCase{"exitondemand", true}, AskCase{"endexitondemand", true},
        AskCase{"exitgame", true}, AskCase{"anythingelse", false}));

TEST_F(VerifyingMessages, TheEndOfASubgameActsAllTheSame) {
  Send("cursor_bandaid");
  Send("subgame_maze");
  Ask("subgamedone");
  EXPECT_EQ(Current(), "floor1hall1");
}

TEST_F(VerifyingMessages, ClicksAndMovesActAllTheSame) {
  Ask("mousemove_30_40");
  EXPECT_EQ(Global("handcursor")->xpos(), 14);
  Ask("mouseclick_120_120");
  EXPECT_EQ(Current(), "dogroom");
}

TEST_F(VerifyingMessages, AMessageToAnObjectGoesDownVerifyingAndTheAnswerIsTrueAnyway) {
  EXPECT_TRUE(Ask("toobj_dogdoor_changestate_nosuch", false));
  EXPECT_EQ(Child(logic->CurrentScreen(), "dogdoor")->CurrentState(), "default");
  EXPECT_TRUE(Ask("toobj_dogdoor_changestate_better1"));
  EXPECT_EQ(Child(logic->CurrentScreen(), "dogdoor")->CurrentState(), "default");
}

TEST_F(VerifyingMessages, AHideFromElsewhereGoesDownVerifying) {
  bool result = false;
  logic->HandleMessage("hideobj_dogdoor", logic->ToolsScreen().get(), true, result);
  EXPECT_TRUE(result);
  EXPECT_TRUE(Child(logic->CurrentScreen(), "dogdoor")->Visible());
}

TEST_F(VerifyingMessages, AnAnswerAboutAScreenThatLacksItsNameIsFatal) {
  for (const char* message : {"cs", "cursor", "toscreen", "subgame"}) {
    EXPECT_NE(Fault([&] { Ask(message); }), "(none)") << message;
  }
}

}  // namespace
}  // namespace quendle
