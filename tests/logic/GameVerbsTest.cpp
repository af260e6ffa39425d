// What the rules of the game and a screen decide on a message, and on the name of a screen.
#include "logic/GameVerbs.h"

#include <gtest/gtest.h>

#include <utility>

#include "logic/MenuVerbs.h"
#include "logic/ScreenMeaning.h"
#include "logic/ScreenVerbs.h"

namespace quendle {
namespace {

// A message as it stands, taken apart at its first underscore.
GameVerb VerbOf(const std::string& message) {
  return GameVerbOf(message, message.substr(0, message.find('_')));
}

TEST(GameVerbs, SomeWordsMustBeTheFirst) {
  const std::pair<const char*, GameVerb> first[] = {
      {"Cursor", GameVerb::kCursor},       {"tool", GameVerb::kTool},
      {"toscreen", GameVerb::kToScreen},   {"subgame", GameVerb::kSubgame},
      {"CS", GameVerb::kChangeScreen},     {"removeobj", GameVerb::kRemoveObj},
      {"toobj", GameVerb::kToObj},         {"mouseclick", GameVerb::kMouseClick},
      {"mousemove", GameVerb::kMouseMove}, {"hideobj", GameVerb::kHideObj},
      {"playmusic", GameVerb::kPlayMusic}, {"stopmusic", GameVerb::kStopMusic},
      {"resetgame", GameVerb::kResetGame}, {"exitondemand", GameVerb::kExitOnDemand},
      {"exitgame", GameVerb::kExitGame},   {"endexitondemand", GameVerb::kEndExitOnDemand},
  };
  for (const auto& [word, verb] : first) {
    EXPECT_EQ(VerbOf(std::string(word) + "_a"), verb) << word;
    EXPECT_EQ(VerbOf("x" + std::string(word)), GameVerb::kNone) << word;
    EXPECT_EQ(VerbOf("a_" + std::string(word)), GameVerb::kNone) << word;
  }
}

TEST(GameVerbs, SomeWordsAreLookedForAnywhere) {
  const std::pair<const char*, GameVerb> held[] = {{"subgamedone", GameVerb::kSubgameDone},
                                                   {"resetalltools", GameVerb::kResetAllTools},
                                                   {"resettools", GameVerb::kResetTools},
                                                   {"buynow", GameVerb::kBuyNow},
                                                   {"screenprevious", GameVerb::kScreenPrevious}};
  for (const auto& [word, verb] : held) {
    EXPECT_EQ(VerbOf("a_x" + std::string(word) + "x"), verb) << word;
  }
}

TEST(GameVerbs, TheFirstRowThatFitsDecides) {
  EXPECT_EQ(VerbOf("toscreen_hall_subgamedone"), GameVerb::kToScreen);
  EXPECT_EQ(VerbOf("subgame_subgamedone"), GameVerb::kSubgameDone);
  EXPECT_EQ(VerbOf("cs_buynow"), GameVerb::kBuyNow);
  EXPECT_EQ(VerbOf("subgame_buynow"), GameVerb::kSubgame);
  EXPECT_EQ(VerbOf("resettools_resetalltools"), GameVerb::kResetAllTools);
}

TEST(GameVerbs, WordsOfAVerbAreComparedWhole) {
  EXPECT_EQ(ToolWordOf("Yes"), ToolWord::kYes);
  EXPECT_EQ(ToolWordOf("AlreadyHaveTool"), ToolWord::kAlreadyHave);
  EXPECT_EQ(ToolWordOf("TooMany"), ToolWord::kTooMany);
  EXPECT_EQ(ToolWordOf("yess"), ToolWord::kOffer);
  EXPECT_EQ(ScreenWordOf("Tools"), ScreenWord::kTools);
  EXPECT_EQ(ScreenWordOf("Cursors"), ScreenWord::kCursors);
  EXPECT_EQ(ScreenWordOf("CurrentScreen"), ScreenWord::kCurrent);
  EXPECT_EQ(ScreenWordOf("current"), ScreenWord::kNamed);
  EXPECT_EQ(SubgameWordOf("Won"), SubgameWord::kWon);
  EXPECT_EQ(SubgameWordOf("Lost"), SubgameWord::kLost);
  EXPECT_EQ(SubgameWordOf("wonscreen"), SubgameWord::kBegins);
}

TEST(GameVerbs, NamesAreBuiltOfTheThingInTheHand) {
  EXPECT_EQ(PointerNameOf("soap"), "soapcursor");
  EXPECT_EQ(ToolNameOf("soap"), "soaptool");
  EXPECT_EQ(ToolWonMessage("soap"), "toobj_soap_runscript_toolwon");
  EXPECT_TRUE(IsPointerName("soapCursor"));
  EXPECT_FALSE(IsPointerName("cursors"));
  EXPECT_TRUE(NamesCurrentTool("theCurrentTool"));
  EXPECT_FALSE(NamesCurrentTool("tool"));
}

TEST(ScreenVerbs, EveryScreenHasThem) {
  for (const char* screen : {"hall", "tools"}) {
    EXPECT_EQ(ScreenVerbOf("xaddglobalobj_soaptool", screen), ScreenVerb::kAddGlobalObj);
    EXPECT_EQ(ScreenVerbOf("IncToolCounter", screen), ScreenVerb::kScrollOn);
    EXPECT_EQ(ScreenVerbOf("DecToolCounter", screen), ScreenVerb::kScrollBack);
    EXPECT_EQ(ScreenVerbOf("inctoolcounter_", screen), ScreenVerb::kClimb);
    EXPECT_EQ(ScreenVerbOf("hideobj_tooldoor", screen), ScreenVerb::kClimb);
    EXPECT_EQ(ScreenVerbOf("toobj_dog_subgame", screen), ScreenVerb::kClimb);
    for (const char* message : {"removeobj_tool", "runscript_tool", "toobj_tool_a", "cs_hall"}) {
      EXPECT_EQ(ScreenVerbOf(message, screen), ScreenVerb::kInner) << message;
    }
  }
}

TEST(ScreenVerbs, TheToolBarHasMore) {
  const std::pair<const char*, ScreenVerb> more[] = {
      {"xRemoveAllChildren", ScreenVerb::kRemoveAll},
      {"removechildren_removeallchildren", ScreenVerb::kRemoveAll},
      {"xremovechildren", ScreenVerb::kRemoveMost},
      {"Addchild?_soap", ScreenVerb::kAnswerOffer},
      {"addchild_soap", ScreenVerb::kInner}};
  for (const auto& [message, verb] : more) {
    EXPECT_EQ(ScreenVerbOf(message, "Tools"), verb) << message;
    EXPECT_EQ(ScreenVerbOf(message, "cursors"), ScreenVerb::kInner) << message;
  }
  EXPECT_EQ(ScreenVerbOf("removechildren_tool", "tools"), ScreenVerb::kClimb);
}

TEST(MenuVerbs, AScoreIsFoundAnywhere) {
  EXPECT_EQ(MenuVerbOf("toobj_xScoreValue_3"), MenuVerb::kScore);
  EXPECT_EQ(MenuVerbOf("score_value"), MenuVerb::kInner);
}

TEST(ScreenMeaning, HallsAndRoomsShowTheToolBar) {
  EXPECT_TRUE(ShowsToolBar("Floor1Hall1"));
  EXPECT_TRUE(ShowsToolBar("mushrooms"));
  EXPECT_FALSE(ShowsToolBar("elevator"));
}

TEST(ScreenMeaning, HelpGoesByTheName) {
  const std::pair<const char*, HelpPlace> places[] = {
      {"Floor1Hall1", HelpPlace::kMedicalBook}, {"Elevator", HelpPlace::kElevator},
      {"emptyroom1", HelpPlace::kToolRoom},     {"emptyhall", HelpPlace::kToolRoom},
      {"dogroom", HelpPlace::kPatientRoom},     {"generaldog", HelpPlace::kPatientRoom}};
  for (const auto& [screen, place] : places) EXPECT_EQ(HelpPlaceOf(screen), place) << screen;
  for (const char* screen : {"floor1hall2", "elevator2", "squarescreen", "generalemptyroom"}) {
    EXPECT_EQ(HelpPlaceOf(screen), std::nullopt) << screen;
  }
}

}  // namespace
}  // namespace quendle
