#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/Tracer.h"
#include "diagnostics/ClickTrail.h"

namespace quendle {

// What was traced, with texts of its own.
struct TracedEvent {
  TraceKind kind;
  std::string to;
  std::string from;
  std::string text;
  bool verifying = false;
  int depth = 0;
};

// Keeps the events of a run until they are asked for.
class TraceLog : public Tracer {
 public:
  void Trace(const TraceEvent& event) override {
    trail_.Trace(event);
    if (event.kind > TraceKind::kLog) return;  // told by the trail
    events_.push_back({event.kind, std::string(event.to), std::string(event.from),
                       std::string(event.text), event.verifying, event.depth});
  }
  std::vector<TracedEvent> Take() { return std::exchange(events_, {}); }
  // Of the last click.
  const ClickTrail& Trail() const { return trail_; }

 private:
  std::vector<TracedEvent> events_;
  ClickTrail trail_;
};

}  // namespace quendle
