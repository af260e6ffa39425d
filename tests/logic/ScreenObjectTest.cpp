// Screens: the tool bar, and which messages a screen keeps for itself.

#include "logic/ScreenObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "logic/LogicBench.h"

namespace quendle {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

struct BarBench : testing::Test, LogicBench {
  BarBench() { Start(); }

  // Adds spare tools through the screen's own message until the bar has `count` children.
  void FillTo(std::size_t count) {
    for (const std::string& name : SpareTools()) {
      if (Tools().size() >= count) return;
      if (Child(logic->ToolsScreen(), name + "tool") != nullptr) continue;
      Send("toscreen_tools_addglobalobj_" + name + "tool");
    }
  }
  // "x" of each child in view, "-" of the others.
  std::vector<std::string> Places() const {
    std::vector<std::string> places;
    for (const auto& entry : logic->ToolsScreen()->Children()) {
      const GameObjectInterface& child = *entry.value;
      places.push_back(!child.Visible() ? "-" : std::to_string(child.xpos()));
      if (child.Visible()) {
        EXPECT_EQ(child.ypos(), 500) << child.ObjectName();
      }
    }
    return places;
  }
  std::int16_t Offset() const {
    return dynamic_cast<ScreenObject&>(*logic->ToolsScreen()).ToolOffset();
  }
  // The answer of the bar to an offer.
  std::string Offer(const std::string& name) {
    ForgetTrace();
    Send("toscreen_tools_addchild?_" + name);
    for (const std::string& line : trace.messages) {
      if (line.starts_with("GameLogic: tool_")) return line.substr(11);
    }
    return "(none)";
  }
};

using ScreenObjectTest = BarBench;

// --- The bar. Its children: handtool, two arrows, medicalbooktool, then what is added.

TEST_F(ScreenObjectTest, OnlyTheScreenNamedToolsIsTheBar) {
  EXPECT_TRUE(dynamic_cast<ScreenObject&>(*logic->ToolsScreen()).IsToolBar());
  EXPECT_FALSE(dynamic_cast<ScreenObject&>(*logic->CurrentScreen()).IsToolBar());
}

TEST_F(ScreenObjectTest, TheBarIsArrangedWhenItIsTurnedOnAndNotWhileItLoads) {
  ObjectRef bar = Make("tools");
  EXPECT_TRUE(Child(bar, "leftarrow")->Visible());
  bar->TurnOn();
  EXPECT_FALSE(Child(bar, "leftarrow")->Visible());
}

TEST_F(ScreenObjectTest, UpToEightChildrenEveryToolHasASlotAndTheArrowsAreHidden) {
  EXPECT_THAT(Places(), ElementsAre("60", "-", "-", "145"));
  FillTo(8);
  EXPECT_EQ(Offset(), 0);
  EXPECT_THAT(Places(), ElementsAre("60", "-", "-", "145", "230", "315", "400", "485"));
}

TEST_F(ScreenObjectTest, AToolIsInItsSlotRightAfterItWasAdded) {
  FillTo(5);
  EXPECT_EQ(Child(logic->ToolsScreen(), "asparetool")->xpos(), 60 + 2 * 85);
  EXPECT_EQ(Child(logic->ToolsScreen(), "asparetool")->ypos(), 500);
}

TEST_F(ScreenObjectTest, WithNineChildrenSixToolsAndTheArrowsAreShown) {
  FillTo(9);
  EXPECT_EQ(Offset(), 1);
  // Seven tools: the first is scrolled off, six are in view.
  EXPECT_THAT(Places(), ElementsAre("-", "15", "620", "60", "145", "230", "315", "400", "485"));
  Send("toscreen_tools_dectoolcounter");
  EXPECT_THAT(Places(), ElementsAre("60", "15", "620", "145", "230", "315", "400", "485", "-"));
}

TEST_F(ScreenObjectTest, AWonToolScrollsIntoView) {
  FillTo(11);
  EXPECT_EQ(Offset(), 3);
  EXPECT_THAT(Places(),
              ElementsAre("-", "15", "620", "-", "-", "60", "145", "230", "315", "400", "485"));
}

TEST_F(ScreenObjectTest, AThirdArrowStandsFiftyPixelsFurther) {
  FillTo(9);
  PutObject(files, ClickButton("third", ""));
  logic->ToolsScreen()->AddChildObject(Make("third"));
  EXPECT_EQ(Child(logic->ToolsScreen(), "third")->xpos(), 670);
}

TEST_F(ScreenObjectTest, AnAdditionOfNothingArrangesTheBarFromEightChildrenOn) {
  FillTo(7);
  Send("toscreen_tools_removeobj_medicalbooktool");
  Send("toscreen_tools_addglobalobj_nosuch");
  EXPECT_THAT(Places(), ElementsAre("60", "-", "-", "230", "315", "400")) << "the gap stays";
  FillTo(9);
  Send("toscreen_tools_removeobj_asparetool");
  ASSERT_EQ(Tools().size(), 8U);
  Send("toscreen_tools_addglobalobj_nosuch");
  EXPECT_THAT(Places(), ElementsAre("60", "-", "-", "145", "230", "315", "400", "485"));
}

TEST_F(ScreenObjectTest, TheCounterStopsWhereSixMoreWouldPassTheCount) {
  FillTo(9);
  for (int i = 0; i < 10; ++i) Send("toscreen_tools_inctoolcounter");
  EXPECT_EQ(Offset(), 4);  // 4 + 6 exceeds 9
  EXPECT_THAT(Places(), ElementsAre("-", "15", "620", "-", "-", "-", "60", "145", "230"));
  for (int i = 0; i < 10; ++i) Send("toscreen_tools_DecToolCounter");
  EXPECT_EQ(Offset(), 0);
}

TEST_F(ScreenObjectTest, SixChildrenCanBeScrolledOnceAndNothingShowsIt) {
  FillTo(6);
  Send("toscreen_tools_inctoolcounter");
  EXPECT_EQ(Offset(), 1);
  Send("toscreen_tools_inctoolcounter");
  EXPECT_EQ(Offset(), 1);
  EXPECT_THAT(Places(), ElementsAre("60", "-", "-", "145", "230", "315"));
}

TEST_F(ScreenObjectTest, OnlyAnAddedGlobalMovesTheOffset) {
  FillTo(9);
  Send("toscreen_tools_dectoolcounter");
  logic->ToolsScreen()->AddChildObject(Global("jsparetool"));
  EXPECT_EQ(Offset(), 0);
  logic->ToolsScreen()->RemoveChild("jsparetool");
  EXPECT_EQ(Offset(), 0);
  EXPECT_THAT(Places(), ElementsAre("60", "15", "620", "145", "230", "315", "400", "485", "-"));
}

TEST_F(ScreenObjectTest, RemovingThroughTheScreenArranges) {
  FillTo(6);
  logic->ToolsScreen()->RemoveChild("medicalbooktool");
  EXPECT_THAT(Places(), ElementsAre("60", "-", "-", "145", "230"));
}

TEST_F(ScreenObjectTest, RemovalByMessageLeavesAGapUntilTheNextHall) {
  FillTo(6);
  Send("toscreen_tools_removeobj_medicalbooktool");
  EXPECT_THAT(Places(), ElementsAre("60", "-", "-", "230", "315"));
  Send("cs_floor1hall1");
  EXPECT_THAT(Places(), ElementsAre("60", "-", "-", "145", "230"));
}

TEST_F(ScreenObjectTest, RemovingAllKeepsTheOffsetAndDoesNotArrange) {
  FillTo(11);
  Send("toscreen_tools_removechildren");

  EXPECT_THAT(Tools(), ElementsAre("handtool", "leftarrow", "rightarrow", "medicalbooktool"));
  EXPECT_EQ(Offset(), 3);
  EXPECT_THAT(Places(), ElementsAre("-", "15", "620", "-"));
  Send("toscreen_tools_removeallchildren");
  EXPECT_THAT(Tools(), ElementsAre("handtool", "leftarrow", "rightarrow"));
  Send("cs_floor1hall1");
  EXPECT_THAT(Places(), ElementsAre("60", "-", "-"));
}

TEST_F(ScreenObjectTest, TheCounterMessagesActOnAnyScreenAndAreTheWholeText) {
  Send("cs_floor1hall1");
  Send("toscreen_currentscreen_IncToolCounter");
  for (const auto& entry : logic->CurrentScreen()->Children()) {
    EXPECT_FALSE(entry.value->Visible()) << entry.key;
  }
  FillTo(9);
  const std::int16_t before = Offset();
  Send("toscreen_tools_inctoolcounter_x");
  EXPECT_EQ(Offset(), before);
}

TEST_F(ScreenObjectTest, AskingAboutTheCounterMovesNothing) {
  FillTo(9);
  bool result = true;
  logic->ToolsScreen()->HandleMessage("inctoolcounter", nullptr, true, result);
  logic->ToolsScreen()->HandleMessage("addglobalobj_jsparetool", nullptr, true, result);
  logic->ToolsScreen()->HandleMessage("removeallchildren", nullptr, true, result);
  EXPECT_EQ(Offset(), 1);
  EXPECT_EQ(Tools().size(), 9u);
}

// --- Offers.

TEST_F(ScreenObjectTest, AnOfferIsAcceptedUnlessHeldOrFull) {
  EXPECT_EQ(Offer("bandaid"), "tool_yes_bandaid");
  Send("toscreen_tools_addglobalobj_bandaidtool");
  EXPECT_EQ(Offer("BANDAID"), "tool_alreadyhavetool");
}

TEST_F(ScreenObjectTest, TheLimitCountsAllChildrenAndHeldIsAskedFirst) {
  FillTo(11);
  EXPECT_EQ(Offer("bandaid"), "tool_yes_bandaid");
  FillTo(12);
  EXPECT_EQ(Offer("bandaid"), "tool_toomany");
  EXPECT_EQ(Offer("aspare"), "tool_alreadyhavetool");
}

TEST_F(ScreenObjectTest, AChildCalledLikeACursorCountsAsHeld) {
  PutObject(files, ClickButton("soapcursor", ""));
  logic->ToolsScreen()->AddChildObject(Make("soapcursor"));
  EXPECT_EQ(Offer("soap"), "tool_alreadyhavetool");
}

TEST_F(ScreenObjectTest, AnOfferWithoutANameIsFatal) {
  EXPECT_NE(Fault([&] { Send("toscreen_tools_addchild?"); }), "(none)");
}

TEST_F(ScreenObjectTest, OtherScreensDoNotAnswerOffers) {
  Send("cs_floor1hall1");
  ForgetTrace();
  Send("toscreen_currentscreen_addchild?_soap");
  // It climbs as an unknown verb.
  EXPECT_TRUE(Sent("GameLogic: addchild?_soap"));
  EXPECT_FALSE(Sent("GameLogic: tool_yes_soap"));
}

// --- What climbs.

TEST_F(ScreenObjectTest, AMessageThatHoldsToolGoesUpBeforeTheChildrenAreLookedAt) {
  Send("cs_floor1hall1");
  Send("toscreen_currentscreen_hideobj_tooldoor");
  EXPECT_TRUE(Child(logic->CurrentScreen(), "tooldoor")->Visible());
  Send("toscreen_tools_hideobj_handtool");
  EXPECT_TRUE(Child(logic->ToolsScreen(), "handtool")->Visible());
  ForgetTrace();
  Send("toscreen_currentscreen_showobj_tooldoor");
  EXPECT_TRUE(Sent("GameLogic: showobj_tooldoor"));
}

TEST_F(ScreenObjectTest, ThreeVerbsKeepAMessageAboutToolsHere) {
  Send("cs_floor1hall1");
  Send("toscreen_currentscreen_toobj_tooldoor_changestate_better1");
  EXPECT_EQ(Child(logic->CurrentScreen(), "tooldoor")->CurrentState(), "better1");
  ForgetTrace();
  Send("toscreen_currentscreen_runscript_tool");
  EXPECT_FALSE(Sent("GameLogic: runscript_tool"));
  Send("toscreen_currentscreen_removeobj_tooldoor");
  EXPECT_EQ(Child(logic->CurrentScreen(), "tooldoor"), nullptr);
}

TEST_F(ScreenObjectTest, AMessageThatHoldsSubgameGoesUp) {
  Send("cs_floor1hall1");
  ForgetTrace();
  Send("toscreen_currentscreen_showobj_subgamedoor");
  EXPECT_TRUE(Sent("GameLogic: showobj_subgamedoor"));
  Send("toscreen_currentscreen_hideobj_dogdoor_subgame");
  EXPECT_TRUE(Child(logic->CurrentScreen(), "dogdoor")->Visible()) << "the screen leaves it alone";
}

TEST_F(ScreenObjectTest, AnAdditionComesBeforeEverythingElse) {
  Send("cs_floor1hall1");
  Send("toscreen_currentscreen_addglobalobj_bandaidtool");
  EXPECT_NE(Child(logic->CurrentScreen(), "bandaidtool"), nullptr);
  // The verb is compared whole: a message that only holds it adds nothing.
  Send("toscreen_currentscreen_xaddglobalobjx_asparetool");
  EXPECT_EQ(Child(logic->CurrentScreen(), "asparetool"), nullptr);
}

TEST_F(ScreenObjectTest, AMessageThatTheScreenAndTheRulesHandToEachOtherEndsWithItsName) {
  Send("cs_floor1hall1");
  EXPECT_THAT(Fault([&] { Send("toobj_dogdoor_subgame"); }), HasSubstr("toobj_dogdoor_subgame"));
  EXPECT_EQ(watch.depth.Depth(), 0);
}

// --- Menus.

struct MenuBench : testing::Test, LogicBench {
  MenuBench() {
    PutObject(files, ClickButton("score", ""));
    PutObject(files, {.type = "menu",
                      .name = "scores",
                      .states = {{.name = "default"}, {.name = "better1"}},
                      .children = {ObjectPath("score")}});
    Start();
    menu = Make("scores");
    menu->SetParent(logic);
  }
  ObjectRef menu;
};

using MenuObjectTest = MenuBench;

TEST_F(MenuObjectTest, AMenuNeverHasChildren) {
  EXPECT_TRUE(menu->Children().Empty());
  menu->Send("addglobalobj_bandaidtool");
  menu->AddChildObject(Global("bandaidtool"));
  EXPECT_TRUE(menu->Children().Empty());
}

TEST_F(MenuObjectTest, AScoreEndsInTheMenuAndDoesNotClimb) {
  ForgetTrace();
  menu->Send("xScoreValue_5");
  EXPECT_THAT(trace.messages, ElementsAre("scores: xScoreValue_5"));
}

TEST_F(MenuObjectTest, OtherMessagesAreThoseOfAnyObject) {
  menu->Send("changestate_better1");
  EXPECT_EQ(menu->CurrentState(), "better1");
  ForgetTrace();
  menu->Send("playmusic");
  EXPECT_TRUE(Sent("GameLogic: playmusic"));
}

// --- What a screen decides itself is traced and named in faults like any other message.

TEST_F(ScreenObjectTest, MessagesThatAScreenDecidesItselfAreTraced) {
  struct Case {
    const char* message;
    const char* line;
  };
  for (const Case& c : {Case{"toscreen_tools_inctoolcounter", "tools: inctoolcounter"},
                        Case{"toscreen_tools_dectoolcounter", "tools: dectoolcounter"},
                        Case{"toscreen_tools_removechildren", "tools: removechildren"},
                        Case{"toscreen_tools_removeallchildren", "tools: removeallchildren"},
                        Case{"toscreen_tools_addchild?_bandaid", "tools: addchild?_bandaid"},
                        Case{"toobj_start_changestate_better1", "start: changestate_better1"}}) {
    ForgetTrace();
    Send(c.message);
    EXPECT_TRUE(Sent(c.line)) << c.line;
  }
}

TEST_F(ScreenObjectTest, AMessageOnToolsPassesTheScreenInTheTrace) {
  bool unused = false;
  logic->CurrentScreen()->HandleMessage("tool_toomany", nullptr, false, unused);
  EXPECT_THAT(trace.messages, ElementsAre("introscreen: tool_toomany", "GameLogic: tool_toomany",
                                          testing::_, testing::_));
}

TEST_F(ScreenObjectTest, AFaultNamesTheScreenThatAMessageOnToolsPassed) {
  bool unused = false;
  EXPECT_THROW(logic->CurrentScreen()->HandleMessage("subgame_nosuchgame", nullptr, false, unused),
               FatalError);
  EXPECT_EQ(watch.depth.FailedObject(), "introscreen");
}

}  // namespace
}  // namespace quendle
