#pragma once

#include <array>
#include <cstddef>
#include <memory>

namespace quendle {

class PlayAreaObject;

enum class SubgameKind { kSquare, kShooter, kBlinker, kBobbler };
inline constexpr std::size_t kSubgameKinds = 4;

// What the play areas of one run share: for each game the area that started its timer last, so that
// a timer's callback can reach it. Areas are owned by their screens.
struct SubgameWorld {
  std::weak_ptr<PlayAreaObject>& CurrentPlayArea(SubgameKind kind) {
    return areas_[static_cast<std::size_t>(kind)];
  }

 private:
  std::array<std::weak_ptr<PlayAreaObject>, kSubgameKinds> areas_;
};

// "OnSquareTimer" and so on: what the timer of a game is called in diagnostics.
const char* TimerCallbackName(SubgameKind kind);

// The callback of a game's timer: a tick of the current play area, unless the timer is no longer
// its own.
void OnPlayAreaTimer(SubgameWorld& world, SubgameKind kind, int id);

}  // namespace quendle
