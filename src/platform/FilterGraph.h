#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quendle {

// One sound file in a player. The Query operations take the views on the graph; an operation of a
// view may be called only when its Query gave true.
class FilterGraph {
 public:
  virtual ~FilterGraph() = default;
  // Builds the graph for a file (full path). False when that fails.
  virtual bool RenderFile(const std::string& path) = 0;
  virtual bool QueryAudio() = 0;
  virtual bool QueryEvent() = 0;
  virtual bool QueryPosition() = 0;

  // Media control.
  virtual void Run() = 0;
  virtual void Pause() = 0;
  virtual void Stop() = 0;

  // Media position: seconds of the sound at normal speed, whatever the speed is, and that speed
  // with 1.0 as normal. The duration never changes.
  virtual double Duration() = 0;
  virtual double Position() = 0;
  virtual void SetPosition(double seconds) = 0;
  virtual double Rate() = 0;
  virtual bool SetRate(double rate) = 0;

  // Basic audio: volume -10000 to 0 in hundredths of a decibel, balance -10000 to 10000.
  virtual std::int32_t Volume() = 0;
  virtual void SetVolume(std::int32_t volume) = 0;
  virtual std::int32_t Balance() = 0;
  virtual void SetBalance(std::int32_t balance) = 0;

  // Media event: waits up to `timeout` milliseconds (not at all where time is virtual); nonzero
  // means that playback completed, 0 that it didn't yet.
  virtual long WaitForCompletion(long timeout) = 0;
};

// Makes graphs (FilgraphManager); one per loaded file.
class FilterGraphs {
 public:
  virtual ~FilterGraphs() = default;
  // A new empty graph; nothing on failure.
  virtual std::unique_ptr<FilterGraph> Create() = 0;
  // Sentences for the log since last asked: why something can't be heard, each told once.
  virtual std::vector<std::string> TakeProblems() { return {}; }
};

}  // namespace quendle
