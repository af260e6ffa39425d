#include "media/DShowObj.h"

#include <algorithm>

#include "base/FatalError.h"
#include "base/Text.h"
#include "platform/FilterGraph.h"

namespace quendle {
namespace {

constexpr std::int32_t kSilence = -10000;
constexpr std::int32_t kBalanceRange = 10000;
constexpr double kSlowest = 0.1;

}  // namespace

DShowObj::DShowObj(FilterGraphs& graphs) : graphs_(graphs) {}

DShowObj::~DShowObj() = default;

void DShowObj::Remove() {
  if (control_) control_->Stop();
  control_.reset();
  audio_ = event_ = position_ = ran_ = paused_ = false;
  file_.clear();
}

void DShowObj::Initialize(const std::string& path) {
  if (control_ && EqualsNoCase(path, file_)) return;
  Remove();
  control_ = graphs_.Create();
  // Whatever can't be had ends the preparation in silence, with the views taken by then.
  if (!control_ || !control_->RenderFile(path)) return;
  file_ = path;
  audio_ = control_->QueryAudio();
  if (!audio_) return;
  event_ = control_->QueryEvent();
  if (!event_) return;
  position_ = control_->QueryPosition();
  if (position_) control_->SetRate(1.0);
}

void DShowObj::Play() {
  if (!position_) return;
  control_->SetPosition(0);
  control_->Run();
  ran_ = true;
  paused_ = false;
}

void DShowObj::Pause() {
  if (!control_) return;
  control_->Pause();
  paused_ = ran_;
}

void DShowObj::StopSound() {
  if (!position_) return;
  control_->Stop();
  control_->SetPosition(0);
  ran_ = paused_ = false;
}

void DShowObj::SeekSound(double seconds) {
  if (position_) SetPosition(GetPosition() + seconds);
}

bool DShowObj::StillPlaying(long timeout) {
  return event_ && ran_ && control_->WaitForCompletion(timeout) == 0;
}

double DShowObj::GetRate() const { return position_ ? control_->Rate() : 0; }

void DShowObj::SetRate(double rate) {
  if (!position_) return;
  if (!(rate > 0)) rate = kSlowest;
  if (!control_->SetRate(rate)) throw FatalError("the speed of a sound can't be set", {file_, 0});
}

double DShowObj::GetDuration() const { return position_ ? control_->Duration() : 0; }

double DShowObj::GetPosition() const { return position_ ? control_->Position() : 0; }

void DShowObj::SetPosition(double seconds) {
  if (!position_) return;
  if (!(seconds >= 0)) seconds = 0;
  control_->SetPosition(std::min(seconds, control_->Duration()));
}

std::int32_t DShowObj::GetVolume() const { return audio_ ? control_->Volume() : 0; }

void DShowObj::SetVolume(std::int32_t volume) {
  if (audio_) control_->SetVolume(std::clamp(volume, kSilence, 0));
}

std::int32_t DShowObj::GetBalance() const { return audio_ ? control_->Balance() : 0; }

void DShowObj::SetBalance(std::int32_t balance) {
  if (audio_) control_->SetBalance(std::clamp(balance, -kBalanceRange, kBalanceRange));
}

}  // namespace quendle
