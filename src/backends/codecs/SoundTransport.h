#pragma once

#include "platform/Clock.h"

namespace quendle {

// Where a sound stands that is played without being heard: time alone moves it. Positions and the
// duration are seconds of the sound at normal speed; at another rate the position runs so many
// times as fast and the duration stays.
class SoundTransport {
 public:
  // Speeds that are played at all: far beyond them nothing is heard any more.
  static constexpr double kLowestRate = 0.01;
  static constexpr double kHighestRate = 10;

  // `clock` must outlive the transport.
  SoundTransport(Clock& clock, double duration) : clock_(clock), duration_(duration) {}

  void Run();
  void Pause();
  // The position stays.
  void Stop();

  bool Running() const { return state_ == State::kRunning; }
  bool Stopped() const { return state_ == State::kStopped; }
  // True once the end was reached, until Stop or a position before the end.
  bool Completed() const { return !Stopped() && Position() >= duration_; }

  double Duration() const { return duration_; }
  double Position() const;
  // Kept between 0 and the duration.
  void SetPosition(double seconds);
  double Rate() const { return rate_; }
  // False, and nothing changes, for a speed out of range.
  bool SetRate(double rate);

 private:
  enum class State { kStopped, kPaused, kRunning };
  void Enter(State state);

  Clock& clock_;
  double duration_;
  double rate_ = 1;
  State state_ = State::kStopped;
  double position_ = 0;    // at since_
  Milliseconds since_{0};  // of the last change
};

}  // namespace quendle
