#pragma once

#include <cstdint>

#include "subgames/TwoStateCellObject.h"

namespace quendle {

// The ball, which bounces in the field and off other cells.
class CellObject_BBall : public TwoStateCellObject {
 public:
  using TwoStateCellObject::TwoStateCellObject;

  // Moves on; at the sides and at the top it turns with the sound "bounce", at the bottom the
  // gutter flag is set.
  void Update() override;
  bool DidWeHitTheGutter() const { return gutter_; }
  // True if a corner of the ball is on `other`, or a corner of `other` on the ball.
  bool DidWeHitCell(GameObjectInterface& other);
  // Sends the ball off by where it struck `other`, with the sound "bounce". Mode 0 only mirrors
  // one of its speeds.
  void ChangeDirection(const GameObjectInterface& other, int mode);
  // Back to its start.
  void ResetBall();

  // Pixels a tick.
  std::int16_t GetHDisposition() const { return h_; }
  std::int16_t GetVDisposition() const { return v_; }
  void SetHDisposition(std::int16_t h) { h_ = h; }
  void SetVDisposition(std::int16_t v) { v_ = v; }

  void Describe(Inspector& inspector) const override;

 private:
  static constexpr std::int16_t kSpeed = 10;

  double AngleFrom(const GameObjectInterface& other) const;
  void Mirror(double angle);
  void SendOff(double angle, bool off_paddle);

  bool gutter_ = false;
  std::int16_t h_ = kSpeed;
  std::int16_t v_ = kSpeed;
};

}  // namespace quendle
