#pragma once

#include "backends/codecs/SoundLibrary.h"
#include "platform/FilterGraph.h"

namespace quendle {

class Clock;
class Faults;
class FileSystem;

// Players that nobody hears: files are decoded, so that durations are the real ones, and positions
// run with the clock. In virtual time a sound thus ends at the same moment every time.
// "CreateGraph" and "RenderFile" can be planned to fail.
class HeadlessFilterGraphs : public FilterGraphs {
 public:
  // All must outlive this object and its graphs; so must this object.
  HeadlessFilterGraphs(FileSystem& files, Clock& clock, Faults& faults)
      : library_(files), clock_(clock), faults_(faults) {}

  std::unique_ptr<FilterGraph> Create() override;
  std::vector<std::string> TakeProblems() override { return library_.TakeProblems(); }

 private:
  SoundLibrary library_;
  Clock& clock_;
  Faults& faults_;
};

}  // namespace quendle
