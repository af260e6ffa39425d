#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/Tracer.h"

namespace quendle {

// One thing that happened on the way of a click, with texts of its own.
struct TrailStep {
  TraceKind kind;
  std::string to;
  std::string from;
  std::string text;
  int depth = 0;
};

// The trail of the last click: what was hit, which text went to which script, which branch it took,
// and what came of that. A script that the click only told it was elsewhere, and that did nothing,
// is left out.
class ClickTrail : public Tracer {
 public:
  static constexpr std::size_t kMostSteps = 300;

  void Trace(const TraceEvent& event) override;

  // False before the first click.
  bool Empty() const { return place_.empty(); }
  // "X,Y" in pixels of the frame, and the pointer that clicked.
  const std::string& Place() const { return place_; }
  const std::string& Pointer() const { return pointer_; }
  const std::vector<TrailStep>& Steps() const { return steps_; }
  // Steps beyond the first kMostSteps.
  std::size_t LeftOut() const { return left_out_; }
  // The pointer had just changed, which keeps a click from the screen.
  bool Skipped() const { return skipped_; }
  // Grows with each click, so that who shows the trail knows.
  int Clicks() const { return clicks_; }

 private:
  void TakeClick(const TraceEvent& event);
  void TakeScript(const TraceEvent& event);
  void Add(TrailStep step);
  void AddWaiting();

  std::string place_;
  std::string pointer_;
  std::vector<TrailStep> steps_;
  std::vector<TrailStep> waiting_;  // a script that may turn out to do nothing
  std::string hit_;                 // the object that was hit just now
  std::size_t left_out_ = 0;
  int open_ = 0;  // clicks under way: a script may click, too
  int clicks_ = 0;
  bool skipped_ = false;
};

}  // namespace quendle
