#include "subgames/CellObject_Shooter.h"

#include <algorithm>
#include <limits>
#include <memory>

#include "base/Numbers.h"
#include "media/MediaWorld.h"
#include "object/ObjectWorld.h"
#include "platform/Clock.h"
#include "platform/Ports.h"
#include "platform/RandomSource.h"
#include "subgames/PlayAreaCallbacks.h"

namespace quendle {
namespace {

constexpr std::int16_t kFireOdds = 150;

// A counter that grows for as long as someone plays must not end the game.
std::int16_t Saturated(int value) {
  return static_cast<std::int16_t>(std::min<int>(value, std::numeric_limits<std::int16_t>::max()));
}

}  // namespace

CellObject_Shooter::CellObject_Shooter(ObjectWorld& world)
    : TwoStateCellObject(world),
      side_speed_(ToInt16(2 * world.media.ports.random.Rnd() + 3, "side speed")) {}

void CellObject_Shooter::TurnOn(std::int16_t area_width, std::int16_t area_height) {
  fire_odds_ = kFireOdds;
  TwoStateCellObject::TurnOn(area_width, area_height);
}

void CellObject_Shooter::Update() {
  if (HitRecently() > 0) SetHitRecently(static_cast<std::int16_t>(HitRecently() - 1));
  if (IsGoodCell()) {
    StandAtGoal();
    return;
  }
  Slide();
  FireAtRandom();
}

void CellObject_Shooter::Slide() {
  Setxpos(ToInt16(XGoal() + side_offset_, "xpos of an enemy"));
  Setypos(YGoal());
  side_offset_ =
      static_cast<std::int16_t>(side_offset_ + (to_the_right_ ? side_speed_ : -side_speed_));
  if (side_offset_ < kSideRange && side_offset_ >= 1) return;
  down_offset_ = Saturated(down_offset_ + kDownStep);
  to_the_right_ = !to_the_right_;
}

void CellObject_Shooter::FireAtRandom() {
  Ports& ports = World().media.ports;
  ports.random.Randomize(ports.clock.TimeOfDay());
  if (RoundHalfEven(ports.random.Rnd() * fire_odds_) != 1) return;
  auto field = std::dynamic_pointer_cast<EnemyFireTarget>(Parent());
  if (field != nullptr) field->EnemyFire(xpos(), ypos());
}

void CellObject_Shooter::Describe(Inspector& inspector) const {
  TwoStateCellObject::Describe(inspector);
  inspector.Field("side offset", side_offset_);
  inspector.Field("down offset", down_offset_);
  inspector.Field("side speed", side_speed_);
  inspector.Field("fire odds", fire_odds_);
  inspector.Flag("direction flag", to_the_right_);
}

}  // namespace quendle
