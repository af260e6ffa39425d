#include "subgames/CellObject_Bobbler.h"

#include "base/Numbers.h"
#include "media/MediaWorld.h"
#include "object/ObjectWorld.h"
#include "platform/Clock.h"
#include "platform/Ports.h"
#include "platform/RandomSource.h"
#include "subgames/CellCorners.h"
#include "subgames/Field.h"

namespace quendle {
namespace {

constexpr std::int16_t kFullH = 10;
constexpr std::int16_t kFullV = 8;

}  // namespace

CellObject_Bobbler::CellObject_Bobbler(ObjectWorld& world) : TwoStateCellObject(world) {
  Ports& ports = world.media.ports;
  ports.random.Randomize(ports.clock.TimeOfDay());
  h_ = ToInt16(8 * ports.random.Rnd() - 4, "speed of a cell");
  v_ = ToInt16(10 * ports.random.Rnd() - 5, "speed of a cell");
}

void CellObject_Bobbler::Update() {
  if (xpos() <= 0) {
    h_ = kFullH;
  } else if (xpos() + width() >= kFieldWidth) {
    h_ = -kFullH;
  }
  if (ypos() <= 0) {
    v_ = kFullV;
  } else if (ypos() + height() >= kFieldHeight) {
    v_ = -kFullV;
  }
  Setxpos(ToInt16(xpos() + h_, "xpos of a cell"));
  Setypos(ToInt16(ypos() + v_, "ypos of a cell"));
}

bool CellObject_Bobbler::DidWeHitCell(GameObjectInterface& other) {
  return AnyCornerIsOn(*this, other);
}

void CellObject_Bobbler::Describe(Inspector& inspector) const {
  TwoStateCellObject::Describe(inspector);
  inspector.Field("H", h_);
  inspector.Field("V", v_);
}

}  // namespace quendle
