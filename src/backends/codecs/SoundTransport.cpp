#include "backends/codecs/SoundTransport.h"

#include <algorithm>

namespace quendle {

void SoundTransport::Run() { Enter(State::kRunning); }

void SoundTransport::Pause() { Enter(State::kPaused); }

void SoundTransport::Stop() { Enter(State::kStopped); }

void SoundTransport::Enter(State state) {
  SetPosition(Position());
  state_ = state;
}

double SoundTransport::Position() const {
  if (!Running()) return position_;
  const std::chrono::duration<double> passed = clock_.Monotonic() - since_;
  return std::min(position_ + passed.count() * rate_, duration_);
}

void SoundTransport::SetPosition(double seconds) {
  position_ = seconds > 0 ? std::min(seconds, duration_) : 0;
  since_ = clock_.Monotonic();
}

bool SoundTransport::SetRate(double rate) {
  if (!(rate >= kLowestRate && rate <= kHighestRate)) return false;
  SetPosition(Position());
  rate_ = rate;
  return true;
}

}  // namespace quendle
