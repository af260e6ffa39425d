#include "subgames/CellCorners.h"

#include "base/Numbers.h"

namespace quendle {

bool PointIsOn(const GameObjectInterface& object, int dx, int dy, GameObjectInterface& other) {
  return other.AreWeOnTheObject(ToInt16(object.xpos() + dx, "x of a corner"),
                                ToInt16(object.ypos() + dy, "y of a corner"));
}

bool AnyCornerIsOn(GameObjectInterface& object, GameObjectInterface& other) {
  const int width = object.width();
  const int height = object.height();
  return PointIsOn(object, 0, 0, other) || PointIsOn(object, width, 0, other) ||
         PointIsOn(object, 0, height, other) || PointIsOn(object, width, height, other);
}

}  // namespace quendle
