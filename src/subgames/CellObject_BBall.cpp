#include "subgames/CellObject_BBall.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "subgames/CellCorners.h"
#include "subgames/Field.h"

namespace quendle {
namespace {

constexpr std::int16_t kStart = 300;
// At and below this y stands the paddle, above it the bricks.
constexpr std::int16_t kPaddleRows = 400;
// The ball's bounces lean on exactly this value: just below 90 degrees the tangent stays positive.
constexpr double kPi = 3.14159;
constexpr double kSteepest = 2;

// The direction of a vector with dx not 0: 0 to 360 degrees, y upward.
double AngleToDegrees(double dx, double dy) {
  const double degrees = std::atan(dy / dx) * (180 / kPi);
  if (dx < 0) return degrees + 180;
  return degrees < 0 ? degrees + 360 : degrees;
}

bool IsLeftward(double angle) { return angle >= 135 && angle < 225; }

}  // namespace

void CellObject_BBall::Update() {
  bool bounce = false;
  if (xpos() > 0) {
    if (xpos() + width() >= kFieldWidth) {
      h_ = -kSpeed;
      bounce = true;
    }
  } else {
    h_ = kSpeed;
    bounce = true;
  }
  if (ypos() > 0) {
    if (ypos() + height() >= kFieldHeight) {
      gutter_ = true;
      v_ = -kSpeed;
    }
  } else {
    v_ = kSpeed;
    bounce = true;
  }
  Setxpos(ToInt16(xpos() + h_, "xpos of the ball"));
  Setypos(ToInt16(ypos() + v_, "ypos of the ball"));
  if (bounce) RunSound("bounce");
}

bool CellObject_BBall::DidWeHitCell(GameObjectInterface& other) {
  return AnyCornerIsOn(*this, other) || AnyCornerIsOn(other, *this);
}

void CellObject_BBall::ChangeDirection(const GameObjectInterface& other, int mode) {
  const double angle = AngleFrom(other);
  if (mode == 0) {
    Mirror(angle);
  } else {
    SendOff(angle, other.ypos() >= kPaddleRows);
  }
  RunSound("bounce");
}

double CellObject_BBall::AngleFrom(const GameObjectInterface& other) const {
  const int dx = xpos() - other.xpos();
  const int dy = other.ypos() - ypos();
  if (dx != 0) return AngleToDegrees(dx, dy);
  return other.ypos() <= kPaddleRows && dy < 0 ? 270 : 90;
}

void CellObject_BBall::Mirror(double angle) {
  std::int16_t& speed = IsLeftward(angle) ? h_ : v_;
  speed = ToInt16(-speed, "speed of the ball");
}

void CellObject_BBall::SendOff(double angle, bool off_paddle) {
  const double slope = std::clamp(std::tan(angle / 180 * kPi), -kSteepest, kSteepest);
  v_ = ToInt16(kSpeed * slope, "speed of the ball");
  if (v_ == 0) v_ = slope <= 0 ? -1 : 1;
  h_ = kSpeed;
  if (off_paddle) {
    // At exactly 90 degrees both hold.
    if (angle <= 90) v_ = ToInt16(-v_, "speed of the ball");
    if (angle >= 90) h_ = -kSpeed;
  } else if (angle <= 45 || angle >= 315 || IsLeftward(angle)) {
    h_ = -kSpeed;
  }
}

void CellObject_BBall::ResetBall() {
  gutter_ = false;
  h_ = kSpeed;
  v_ = kSpeed;
  Setxpos(kStart);
  Setypos(kStart);
}

void CellObject_BBall::Describe(Inspector& inspector) const {
  TwoStateCellObject::Describe(inspector);
  inspector.Flag("gutter flag", gutter_);
  inspector.Field("H disposition", h_);
  inspector.Field("V disposition", v_);
}

}  // namespace quendle
