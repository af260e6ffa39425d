#include "subgames/SubgameWorld.h"

#include "subgames/PlayAreaObject.h"

namespace quendle {

void OnPlayAreaTimer(SubgameWorld& world, SubgameKind kind, int id) {
  // Held for the tick: the outcome of a game may drop the screen that owns the area.
  std::shared_ptr<PlayAreaObject> area = world.CurrentPlayArea(kind).lock();
  if (area != nullptr && area->GameUpdateTimerID() == id) area->UpdateGameData();
}

}  // namespace quendle
