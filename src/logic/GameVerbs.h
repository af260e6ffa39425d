// What the rules of the game do with a message that no object takes, and with its words.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quendle {

enum class GameVerb {
  kCursor,
  kTool,
  kToScreen,
  kSubgameDone,
  kSubgame,
  kResetAllTools,
  kResetTools,
  kBuyNow,
  kScreenPrevious,
  kChangeScreen,
  kRemoveObj,
  kToObj,
  kMouseClick,
  kMouseMove,
  kHideObj,
  kPlayMusic,
  kStopMusic,
  kResetGame,
  kExitOnDemand,
  kEndExitOnDemand,
  kExitGame,
  kNone
};

// `first_word` is that of the message. The order in which words are tried, and whether a word is
// looked for anywhere in the message or must be its first, is part of the format.
GameVerb GameVerbOf(std::string_view message, std::string_view first_word);

// "tool_WORD...": an offer, or the bar's answer to one.
enum class ToolWord {
  kYes,
  kAlreadyHave,
  kTooMany,
  kOffer  // any other word: the name of what is offered
};
ToolWord ToolWordOf(std::string_view word);
// A longer one means nothing.
inline constexpr std::size_t kMostToolWords = 3;
// To the screen in view, when the tool of that name is won.
std::string ToolWonMessage(const std::string& name);

// "toscreen_WHERE_...": to whom.
enum class ScreenWord {
  kTools,
  kCursors,
  kCurrent,
  kNamed  // any other word: the name of a screen
};
ScreenWord ScreenWordOf(std::string_view where);

// "subgame_WORD": how a game ended, or which one begins.
enum class SubgameWord {
  kWon,
  kLost,
  kBegins  // any other word: the name of its screen
};
SubgameWord SubgameWordOf(std::string_view word);
// What the patients of the screen hear then, as an action.
inline constexpr const char* kGameWonAction = "gamewon";
inline constexpr const char* kGameLostAction = "gamelost";

// "removeobj_WORD" means the tool in the hand.
bool NamesCurrentTool(std::string_view word);

// The global object that is the pointer while the thing of that name is in the hand.
std::string PointerNameOf(const std::string& thing);
// The tool on the bar that is the thing of that name.
std::string ToolNameOf(const std::string& thing);
// An object of that name can be a pointer.
bool IsPointerName(std::string_view object);

// What is in the hand when it is empty.
inline constexpr const char* kBareHand = "hand";

}  // namespace quendle
