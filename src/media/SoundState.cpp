#include "media/SoundState.h"

#include <utility>

#include "base/ContentFiles.h"
#include "base/EventSink.h"
#include "base/Text.h"
#include "media/DShowObj.h"
#include "media/MediaWorld.h"
#include "platform/FilterGraph.h"
#include "platform/Ports.h"

namespace quendle {
namespace {

constexpr int kLogLevel = 1;

}  // namespace

std::string PlayedPath(std::string path) {
  for (std::size_t at = FindNoCase(path, ".wav"); at != std::string::npos;
       at = FindNoCase(path, ".wav", at)) {
    path.replace(at, 4, ".wma");
  }
  return path;
}

SoundState::SoundState(MediaWorld& world) : world_(world) {}

SoundState::~SoundState() {
  if (!has_parent_ && file_found_ && loaded_ && own_player_) own_player_->Remove();
}

void SoundState::SetParent(std::weak_ptr<SoundPlayerSource> parent) {
  parent_ = std::move(parent);
  has_parent_ = true;
}

bool SoundState::IsPlaying() {
  DShowObj* player = FoundPlayer();
  return player != nullptr && player->StillPlaying(0);
}

void SoundState::SetPosition(double seconds) {
  if (DShowObj* player = FoundPlayer()) player->SetPosition(seconds);
}

void SoundState::LoadSound() {
  if (!has_parent_ && (loaded_ || !file_found_)) return;
  loaded_ = true;
  if (DShowObj* player = Player()) GetReady(*player);
}

void SoundState::SetLoopState(std::string_view word) { loop_ = EqualsNoCase(word, "loop"); }

void SoundState::StopSound() {
  if (DShowObj* player = FoundPlayer()) player->StopSound();
}

void SoundState::SetRate(double rate) {
  if (DShowObj* player = FoundPlayer()) player->SetRate(rate);
}

void SoundState::Pause() {
  if (DShowObj* player = FoundPlayer()) player->Pause();
}

void SoundState::SetVolume(std::int32_t volume) {
  if (DShowObj* player = FoundPlayer()) player->SetVolume(volume);
}

void SoundState::PlaySound() {
  if (!file_found_) return;
  LoadSound();
  if (DShowObj* player = Player()) player->Play();
}

void SoundState::Initialize(const std::string& path, bool preload) {
  sound_ = PlayedPath(path);
  const bool exists = world_.content.FileExistsAt(sound_);
  if (has_parent_) {
    file_found_ = exists;
    return;
  }
  own_player_ = exists ? std::make_unique<DShowObj>(world_.ports.filter_graphs) : nullptr;
  file_found_ = own_player_ != nullptr;
  if (!file_found_ || !preload) return;
  loaded_ = true;
  GetReady(*own_player_);
}

void SoundState::GetReady(DShowObj& player) {
  player.Initialize(sound_);
  if (world_.log == nullptr) return;  // problems are kept until there is one
  for (std::string& problem : world_.ports.filter_graphs.TakeProblems()) {
    if (const std::size_t at = problem.find(sound_); !sound_.empty() && at != std::string::npos) {
      problem.replace(at, sound_.size(), world_.content.DisplayName(sound_));
    }
    world_.log->LogEvent(problem, kLogLevel, "general");
  }
}

DShowObj* SoundState::Player() const {
  if (!has_parent_) return own_player_.get();
  const std::shared_ptr<SoundPlayerSource> parent = parent_.lock();
  return parent ? parent->GetDShowObj() : nullptr;
}

}  // namespace quendle
