#pragma once

#include <memory>
#include <string>
#include <vector>

#include "backends/codecs/SoundLibrary.h"
#include "backends/sound/OpenAlDevice.h"
#include "platform/FilterGraph.h"

namespace quendle {

class Clock;
class FileSystem;

// Players that are heard. Without a sound device they are silent while time passes as if they were
// heard; that is a problem told once, and so is a device that goes away.
class OpenAlFilterGraphs : public FilterGraphs {
 public:
  // Opens the default device when the first graph is made. `files` and `clock` must outlive this
  // object, and this object its graphs.
  OpenAlFilterGraphs(FileSystem& files, Clock& clock) : library_(files), clock_(clock) {}
  // Plays on that device; null for none.
  OpenAlFilterGraphs(FileSystem& files, Clock& clock, std::shared_ptr<OpenAlDevice> device)
      : library_(files), clock_(clock), device_(std::move(device)), opened_(true) {
    TellIfSilent();
  }

  std::unique_ptr<FilterGraph> Create() override;
  std::vector<std::string> TakeProblems() override { return library_.TakeProblems(); }

  // From now on positions are those of the clock and not of what is heard, so that a sound ends at
  // the same moment every time.
  void GoByClockAlone() { by_clock_alone_ = true; }

  // For the graphs.
  bool ByClockAlone() const { return by_clock_alone_; }
  SoundLibrary& Library() { return library_; }
  Clock& GetClock() { return clock_; }
  // Null without one.
  const std::shared_ptr<OpenAlDevice>& Device() const { return device_; }
  // False, from then on for good, once the device has gone away; true without one.
  bool DeviceLives();

 private:
  void TellIfSilent();

  SoundLibrary library_;
  Clock& clock_;
  std::shared_ptr<OpenAlDevice> device_;
  bool opened_ = false;
  bool lost_ = false;
  bool by_clock_alone_ = false;
};

}  // namespace quendle
