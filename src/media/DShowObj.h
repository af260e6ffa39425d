#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace quendle {

class FilterGraph;
class FilterGraphs;

// A player of one sound file at a time. An operation whose part of the player is missing does
// nothing, or gives 0 or false: a file that can't be played is silence.
class DShowObj {
 public:
  // `graphs` must outlive the player.
  explicit DShowObj(FilterGraphs& graphs);
  ~DShowObj();
  DShowObj(const DShowObj&) = delete;
  DShowObj& operator=(const DShowObj&) = delete;

  // Stops and drops the file.
  void Remove();
  // Gets a file (full path) ready, at normal speed. The file that is in the player already, case
  // ignored, costs nothing.
  void Initialize(const std::string& path);
  // Plays from the beginning.
  void Play();
  void Pause();
  // Stops and goes back to the beginning.
  void StopSound();
  // Moves by a signed distance in seconds, kept between the beginning and the end.
  void SeekSound(double seconds);
  // True from Play, also while paused, until the end or StopSound. Waits up to `timeout`
  // milliseconds for the end.
  bool StillPlaying(long timeout);
  // True from Pause until it plays again or is stopped.
  bool Paused() const { return paused_; }

  // Speed, 1.0 as normal; 0 or less becomes 0.1. A speed that the platform refuses is fatal.
  double GetRate() const;
  void SetRate(double rate);
  // Seconds.
  double GetDuration() const;
  double GetPosition() const;
  // Clamped to the sound; not a number becomes 0.
  void SetPosition(double seconds);
  // Hundredths of a decibel, clamped to -10000 (silence) .. 0 (full).
  std::int32_t GetVolume() const;
  void SetVolume(std::int32_t volume);
  // Clamped to -10000 (left) .. 10000 (right).
  std::int32_t GetBalance() const;
  void SetBalance(std::int32_t balance);

  // The file in the player; empty without one.
  const std::string& File() const { return file_; }

 private:
  FilterGraphs& graphs_;
  std::unique_ptr<FilterGraph> control_;  // the graph itself drives
  // Views on the graph that could be taken; they are valid while control_ is there.
  bool audio_ = false;
  bool event_ = false;
  bool position_ = false;
  bool ran_ = false;  // since the last stop
  bool paused_ = false;
  std::string file_;
};

}  // namespace quendle
