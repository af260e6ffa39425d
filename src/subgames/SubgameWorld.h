#pragma once

#include <map>
#include <memory>

namespace quendle {

class PlayAreaObject;

enum class SubgameKind;

// What the play areas of one run share: for each game the area that started its timer last, so that
// a timer's callback can reach it. Areas are owned by their screens.
struct SubgameWorld {
  std::weak_ptr<PlayAreaObject>& CurrentPlayArea(SubgameKind kind) { return areas_[kind]; }

 private:
  std::map<SubgameKind, std::weak_ptr<PlayAreaObject>> areas_;
};

// The callback of a game's timer: a tick of the current play area, unless the timer is no longer
// its own.
void OnPlayAreaTimer(SubgameWorld& world, SubgameKind kind, int id);

}  // namespace quendle
