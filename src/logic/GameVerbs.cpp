#include "logic/GameVerbs.h"

#include "base/FirstFit.h"
#include "screens/ScreenNames.h"

namespace quendle {
namespace {

constexpr std::string_view kPointerEnd = "cursor";

// kIs: the first word; kHolds: anywhere in the message.
constexpr FitRow<GameVerb> kRows[] = {
    {Fit::kIs, "cursor", GameVerb::kCursor},
    {Fit::kIs, "tool", GameVerb::kTool},
    {Fit::kIs, "toscreen", GameVerb::kToScreen},
    {Fit::kHolds, "subgamedone", GameVerb::kSubgameDone},
    {Fit::kIs, "subgame", GameVerb::kSubgame},
    {Fit::kHolds, "resetalltools", GameVerb::kResetAllTools},
    {Fit::kHolds, "resettools", GameVerb::kResetTools},
    {Fit::kHolds, "buynow", GameVerb::kBuyNow},
    {Fit::kHolds, "screenprevious", GameVerb::kScreenPrevious},
    {Fit::kIs, "cs", GameVerb::kChangeScreen},
    {Fit::kIs, "removeobj", GameVerb::kRemoveObj},
    {Fit::kIs, "toobj", GameVerb::kToObj},
    {Fit::kIs, "mouseclick", GameVerb::kMouseClick},
    {Fit::kIs, "mousemove", GameVerb::kMouseMove},
    {Fit::kIs, "hideobj", GameVerb::kHideObj},
    {Fit::kIs, "playmusic", GameVerb::kPlayMusic},
    {Fit::kIs, "stopmusic", GameVerb::kStopMusic},
    {Fit::kIs, "resetgame", GameVerb::kResetGame},
    {Fit::kIs, "exitondemand", GameVerb::kExitOnDemand},
    {Fit::kIs, "endexitondemand", GameVerb::kEndExitOnDemand},
    {Fit::kIs, "exitgame", GameVerb::kExitGame},
};

constexpr FitRow<ToolWord> kToolWords[] = {
    {Fit::kIs, "yes", ToolWord::kYes},
    {Fit::kIs, "alreadyhavetool", ToolWord::kAlreadyHave},
    {Fit::kIs, "toomany", ToolWord::kTooMany},
};

constexpr FitRow<ScreenWord> kScreenWords[] = {
    {Fit::kIs, kToolsScreenName, ScreenWord::kTools},
    {Fit::kIs, kCursorsScreenName, ScreenWord::kCursors},
    {Fit::kIs, "currentscreen", ScreenWord::kCurrent},
};

constexpr FitRow<SubgameWord> kSubgameWords[] = {
    {Fit::kIs, "lost", SubgameWord::kLost},
    {Fit::kIs, "won", SubgameWord::kWon},
};

}  // namespace

GameVerb GameVerbOf(std::string_view message, std::string_view first_word) {
  for (const FitRow<GameVerb>& row : kRows) {
    if (row.Takes(row.fit == Fit::kIs ? first_word : message)) return row.answer;
  }
  return GameVerb::kNone;
}

ToolWord ToolWordOf(std::string_view word) { return FirstFit(kToolWords, word, ToolWord::kOffer); }

std::string ToolWonMessage(const std::string& name) {
  return "toobj_" + name + "_runscript_toolwon";
}

ScreenWord ScreenWordOf(std::string_view where) {
  return FirstFit(kScreenWords, where, ScreenWord::kNamed);
}

SubgameWord SubgameWordOf(std::string_view word) {
  return FirstFit(kSubgameWords, word, SubgameWord::kBegins);
}

bool NamesCurrentTool(std::string_view word) { return ContainsNoCase(word, "currenttool"); }

std::string PointerNameOf(const std::string& thing) { return thing + std::string(kPointerEnd); }
std::string ToolNameOf(const std::string& thing) { return thing + "tool"; }

bool IsPointerName(std::string_view object) {
  return object.size() >= kPointerEnd.size() &&
         EqualsNoCase(object.substr(object.size() - kPointerEnd.size()), kPointerEnd);
}

}  // namespace quendle
