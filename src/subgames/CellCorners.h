#pragma once

#include "object/GameObjectInterface.h"

namespace quendle {

// True if a corner of `object`'s rectangle is on `other`.
bool AnyCornerIsOn(GameObjectInterface& object, GameObjectInterface& other);

// True if the point that lies `dx`, `dy` from the object's position is on `other`.
bool PointIsOn(const GameObjectInterface& object, int dx, int dy, GameObjectInterface& other);

}  // namespace quendle
