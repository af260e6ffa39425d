#include "backends/sound/OpenAlFilterGraph.h"

#include <chrono>
#include <thread>

#include "backends/sound/OpenAlFilterGraphs.h"

namespace quendle {
namespace {

// A mixer takes sound in pieces, much shorter than this. One that stands still for longer doesn't
// work, and the clock alone counts.
constexpr Milliseconds kLongestStandstill{2000};
constexpr std::chrono::milliseconds kWaitStep{5};

}  // namespace

bool OpenAlFilterGraph::RenderFile(const std::string& path) {
  auto sound = graphs_.Library().Get(path);
  if (sound == nullptr) return false;
  transport_.emplace(graphs_.GetClock(), sound->Seconds());
  if (graphs_.Device() != nullptr && graphs_.DeviceLives()) {
    voice_.emplace(graphs_.Device(), std::move(sound));
  }
  return true;
}

void OpenAlFilterGraph::Run() {
  if (!transport_) return;
  Follow();
  transport_->Run();
  if (!voice_ || transport_->Completed()) return;
  if (voice_->HasSource()) {
    heard_since_ = graphs_.GetClock().Monotonic();
    voice_->Resume();
  } else {
    Sound();
  }
}

void OpenAlFilterGraph::Pause() {
  if (!transport_) return;
  Follow();
  transport_->Pause();
  if (voice_) voice_->Pause();
}

void OpenAlFilterGraph::Stop() {
  if (!transport_) return;
  Follow();
  transport_->Stop();
  if (voice_) voice_->Silence();
}

void OpenAlFilterGraph::Sound() {
  heard_ = transport_->Position();
  heard_since_ = graphs_.GetClock().Monotonic();
  voice_->Play(heard_);
}

void OpenAlFilterGraph::Follow() {
  if (!voice_ || !voice_->HasSource()) return;
  const bool sounding = voice_->Sounding();
  if (graphs_.ByClockAlone()) {
    if (!sounding || transport_->Completed()) voice_->Silence();
    return;
  }
  const double heard = sounding ? voice_->Position() : transport_->Duration();
  if (transport_->Running() ? StandsStill(heard) : !sounding) {
    voice_->Silence();
    return;
  }
  if (!sounding && !graphs_.DeviceLives()) {
    // It ended because nothing plays any more: from here it goes on by the clock.
    voice_->Silence();
    return;
  }
  transport_->SetPosition(heard);
  // A source that came to its end serves another sound.
  if (!sounding) voice_->Silence();
}

bool OpenAlFilterGraph::StandsStill(double heard) {
  const Milliseconds now = graphs_.GetClock().Monotonic();
  if (heard != heard_) {
    heard_ = heard;
    heard_since_ = now;
  }
  return now - heard_since_ > kLongestStandstill;
}

double OpenAlFilterGraph::Position() {
  Follow();
  return transport_->Position();
}

void OpenAlFilterGraph::SetPosition(double seconds) {
  transport_->SetPosition(seconds);
  if (!voice_) return;
  voice_->Silence();
  if (transport_->Running() && transport_->Position() < transport_->Duration()) Sound();
}

bool OpenAlFilterGraph::SetRate(double rate) {
  Follow();
  if (!transport_->SetRate(rate)) return false;
  if (voice_) voice_->SetRate(rate);
  return true;
}

void OpenAlFilterGraph::SetVolume(std::int32_t volume) {
  volume_ = volume;
  if (voice_) voice_->SetVolume(volume);
}

void OpenAlFilterGraph::SetBalance(std::int32_t balance) {
  Follow();
  balance_ = balance;
  if (voice_) voice_->SetBalance(balance);
}

long OpenAlFilterGraph::WaitForCompletion(long timeout) {
  for (auto left = std::chrono::milliseconds(timeout);; left -= kWaitStep) {
    Follow();
    if (transport_->Completed()) return 1;
    if (left <= std::chrono::milliseconds(0)) return 0;
    std::this_thread::sleep_for(kWaitStep);
  }
}

}  // namespace quendle
