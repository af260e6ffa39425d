#include "diagnostics/ClickTrail.h"

#include <utility>

namespace quendle {
namespace {

TrailStep StepOf(const TraceEvent& event) {
  return {event.kind, std::string(event.to), std::string(event.from), std::string(event.text),
          event.depth};
}

}  // namespace

void ClickTrail::Trace(const TraceEvent& event) {
  if (event.kind == TraceKind::kClick) {
    TakeClick(event);
    return;
  }
  if (open_ == 0 || event.verifying) return;
  switch (event.kind) {
    case TraceKind::kHit:
      waiting_.clear();
      hit_ = event.to;
      Add(StepOf(event));
      break;
    case TraceKind::kScript:
      TakeScript(event);
      break;
    case TraceKind::kBranch:
      if (event.text.empty() && !waiting_.empty()) {
        waiting_.push_back(StepOf(event));
      } else {
        AddWaiting();
        Add(StepOf(event));
      }
      break;
    default:
      AddWaiting();
      Add(StepOf(event));
      break;
  }
}

void ClickTrail::TakeClick(const TraceEvent& event) {
  const bool begins = !event.text.empty();
  if (begins && open_ > 0) {
    AddWaiting();
    Add(StepOf(event));
  } else if (begins) {
    steps_.clear();
    left_out_ = 0;
    skipped_ = false;
    place_ = event.text;
    pointer_ = event.to;
    ++clicks_;
  }
  waiting_.clear();
  hit_.clear();
  open_ += begins ? 1 : -1;
  if (!begins && open_ <= 0) {
    open_ = 0;
    skipped_ = !event.from.empty();
  }
}

void ClickTrail::TakeScript(const TraceEvent& event) {
  waiting_.clear();
  // A script without an event's text was called by another one.
  if (event.to == hit_ || event.text == "nothing") {
    Add(StepOf(event));
  } else {
    waiting_.push_back(StepOf(event));
  }
  hit_.clear();
}

void ClickTrail::Add(TrailStep step) {
  if (steps_.size() < kMostSteps) {
    steps_.push_back(std::move(step));
  } else {
    ++left_out_;
  }
}

void ClickTrail::AddWaiting() {
  for (TrailStep& step : std::exchange(waiting_, {})) Add(std::move(step));
}

}  // namespace quendle
