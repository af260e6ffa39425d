// Notes which states objects enter, in their order.
#pragma once

#include <string>
#include <vector>

#include "base/Watch.h"

namespace quendle {

// Watches a run from its construction to its end, in the place of any other tracer.
class NotedStates : public Tracer {
 public:
  explicit NotedStates(Watch& watch) : watch_(watch) { watch_.tracer = this; }
  ~NotedStates() override { watch_.tracer = nullptr; }
  NotedStates(const NotedStates&) = delete;
  NotedStates& operator=(const NotedStates&) = delete;

  void Trace(const TraceEvent& event) override {
    if (event.kind != TraceKind::kState) return;
    lines.push_back(std::string(event.to) + ": " + std::string(event.text));
  }

  std::vector<std::string> lines;  // "OBJECT: STATE"

 private:
  Watch& watch_;
};

}  // namespace quendle
