#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/Tracer.h"

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
    events_.push_back({event.kind, std::string(event.to), std::string(event.from),
                       std::string(event.text), event.verifying, event.depth});
  }
  std::vector<TracedEvent> Take() { return std::exchange(events_, {}); }

 private:
  std::vector<TracedEvent> events_;
};

}  // namespace quendle
