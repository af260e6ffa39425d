#include "subgames/CellObject_Shot.h"

#include "base/Numbers.h"

namespace quendle {
namespace {

constexpr std::int16_t kFullLife = 100;
constexpr std::int16_t kLastTicks = 2;
constexpr std::int16_t kSpeed = 12;
constexpr std::int16_t kLimit = 600;

}  // namespace

CellObject_Shot::CellObject_Shot(ObjectWorld& world) : GoalCellObject(world) { Reset(); }

void CellObject_Shot::Reset() {
  getting_destroyed_ = false;
  life_ = kFullLife;
  offset_ = 0;
  speed_ = kSpeed;
  limit_ = kLimit;
  Inner().ProcessState("default");
}

void CellObject_Shot::SetGettingDestroyed(bool destroyed) {
  getting_destroyed_ = destroyed;
  life_ = kLastTicks;
  if (destroyed) Inner().ProcessState("bad");
}

void CellObject_Shot::Update() {
  if (life_ == 0) {
    SetVisible(false);
    life_ = kFullLife;
    return;
  }
  if (getting_destroyed_) --life_;
  Setxpos(XGoal());
  if (IsGoodCell()) {
    FlyUp();
  } else {
    FlyDown();
  }
}

void CellObject_Shot::FlyUp() {
  Setypos(ToInt16(YGoal() - offset_, "ypos of a shot"));
  if (offset_ <= YGoal()) {
    offset_ = ToInt16(offset_ + speed_, "way of a shot");
  } else {
    SetVisible(false);
  }
}

void CellObject_Shot::FlyDown() {
  Setypos(ToInt16(YGoal() + offset_, "ypos of a shot"));
  if (ypos() <= limit_) {
    offset_ = ToInt16(offset_ + speed_, "way of a shot");
  } else {
    SetVisible(false);
  }
}

void CellObject_Shot::Describe(Inspector& inspector) const {
  GoalCellObject::Describe(inspector);
  inspector.Flag("GettingDestroyed", getting_destroyed_);
  inspector.Field("life", life_);
  inspector.Field("offset", offset_);
  inspector.Field("limit", limit_);
  inspector.Field("speed", speed_);
}

}  // namespace quendle
