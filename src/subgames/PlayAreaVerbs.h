#pragma once

#include <string_view>

namespace quendle {

enum class SubgameKind;

// What a play area does with a message.
enum class PlayAreaVerb {
  kInner,  // what any object does with it
  kStartGame,
  kStopGame,
  kEndGame,
  kReplayGame,
  kRestartGame,
  kSelect,
  kAcceptedCell
};

// Looks at the whole message. Not every kind of game has every verb.
PlayAreaVerb PlayAreaVerbOf(SubgameKind kind, std::string_view message);

}  // namespace quendle
