// Names of screens that the game itself knows.
#pragma once

#include <array>
#include <string_view>

namespace quendle {

// Where every game begins; the tool bar; the layer above all, with the pointer and the dialogs.
inline constexpr std::string_view kFirstScreenName = "introscreen";
inline constexpr std::string_view kToolsScreenName = "tools";
inline constexpr std::string_view kCursorsScreenName = "cursors";
// The screens without which no game starts.
inline constexpr std::array kFixedScreens = {kFirstScreenName, kToolsScreenName,
                                             kCursorsScreenName};

// The tool bar or the layer above all: live as long as the game, never the screen in view.
bool IsLayer(std::string_view screen);

// The type word of a screen that is an arcade game.
inline constexpr std::string_view kSubgameType = "subgame";

// The word in the name of a screen that is built anew at each visit.
inline constexpr std::string_view kTutorialWord = "tutorial";
bool IsTutorial(std::string_view screen);

// A name that holds one of these is never written to the saved game.
inline constexpr std::array<std::string_view, 4> kUnsavedWords = {kTutorialWord, kCursorsScreenName,
                                                                  "square", "shooter"};
bool IsNeverSaved(std::string_view screen);

}  // namespace quendle
