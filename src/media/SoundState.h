#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "media/SoundPlayerSource.h"

namespace quendle {

class DShowObj;
struct MediaWorld;

// The file that is played for a path: every ".wav" becomes ".wma", also in the name of a folder.
std::string PlayedPath(std::string path);

// A named sound. With a parent it plays through the parent's one player, so that the parent says
// one thing at a time; without one it has a player of its own. A sound whose file isn't found
// stays silent and never fails.
class SoundState {
 public:
  // `world` must outlive the state.
  explicit SoundState(MediaWorld& world);
  ~SoundState();
  SoundState(const SoundState&) = delete;
  SoundState& operator=(const SoundState&) = delete;

  // Before Initialize. A parent that is gone means silence.
  void SetParent(std::weak_ptr<SoundPlayerSource> parent);
  const std::string& Name() const { return name_; }
  void SetName(std::string name) { name_ = std::move(name); }
  // Full path of the file that is played.
  const std::string& Sound() const { return sound_; }
  // Nothing asks for it: Initialize sets the path.
  void SetSound(std::string path) { sound_ = std::move(path); }
  // Kept and shown; no sound repeats by itself.
  bool DoWeLoop() const { return loop_; }
  // Nothing asks for it: SetLoopState sets it from the word.
  void SetDoWeLoop(bool loop) { loop_ = loop; }

  // True from PlaySound until the end of the sound or StopSound.
  bool IsPlaying();
  void SetPosition(double seconds);
  // Gets the file ready in the player.
  void LoadSound();
  // "loop" (case ignored) sets DoWeLoop, any other word clears it.
  void SetLoopState(std::string_view word);
  void StopSound();
  void SetRate(double rate);
  void Pause();
  void SetVolume(std::int32_t volume);
  // Plays from the beginning; the file is loaded if need be.
  void PlaySound();
  // Sets the file, each ".wav" of its path read as ".wma", and looks whether it is there. Without a
  // parent `preload` gets it ready at once.
  void Initialize(const std::string& path, bool preload);

  bool FileFound() const { return file_found_; }
  bool Loaded() const { return loaded_; }
  // The player in use, or null.
  DShowObj* Player() const;

 private:
  // The player for an operation; null when the sound is silent.
  DShowObj* FoundPlayer() const { return file_found_ ? Player() : nullptr; }
  // Gives the file to the player and logs why something can't be heard.
  void GetReady(DShowObj& player);

  MediaWorld& world_;
  std::string name_;
  std::string sound_;
  bool loop_ = false;
  bool file_found_ = false;
  bool loaded_ = false;
  std::unique_ptr<DShowObj> own_player_;
  bool has_parent_ = false;
  std::weak_ptr<SoundPlayerSource> parent_;
};

}  // namespace quendle
