#include "subgames/SubgameWorld.h"

#include "subgames/PlayAreaObject.h"

namespace quendle {

const char* TimerCallbackName(SubgameKind kind) {
  switch (kind) {
    case SubgameKind::kSquare:
      return "OnSquareTimer";
    case SubgameKind::kShooter:
      return "OnShooterTimer";
    case SubgameKind::kBlinker:
      return "OnBlinkerTimer";
    case SubgameKind::kBobbler:
      return "OnBobblerTimer";
  }
  return "";
}

void OnPlayAreaTimer(SubgameWorld& world, SubgameKind kind, int id) {
  // Held for the tick: the outcome of a game may drop the screen that owns the area.
  std::shared_ptr<PlayAreaObject> area = world.CurrentPlayArea(kind).lock();
  if (area != nullptr && area->GameUpdateTimerID() == id) area->UpdateGameData();
}

}  // namespace quendle
