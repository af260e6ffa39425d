#pragma once

#include "diagnostics/StateSnapshot.h"

namespace quendle {

class GameLogicLayer;
struct ObjectWorld;

// The game as it is: the rules' own state, and the objects of the screens in view, of the tool bar
// and of the pointer layer, with the counters that their classes tell. Texts are UTF-8. Numbers of
// timers and paths are left out.
StateSnapshot TakeSnapshot(const GameLogicLayer& logic, const ObjectWorld& world);

}  // namespace quendle
