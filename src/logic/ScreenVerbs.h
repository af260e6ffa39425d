#pragma once

#include <string_view>

namespace quendle {

// What a screen does with a message.
enum class ScreenVerb {
  kInner,  // what any object does with it
  kAddGlobalObj,
  kScrollOn,
  kScrollBack,
  kClimb,       // to the rules of the game, before any child is looked for
  kRemoveAll,   // of the tool bar, as the rest
  kRemoveMost,  // the medical book stays
  kAnswerOffer
};

// Looks at the whole message; only the tool bar, known by its name, has verbs of its own.
ScreenVerb ScreenVerbOf(std::string_view message, std::string_view screen_name);

}  // namespace quendle
