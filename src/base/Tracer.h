#pragma once

#include <string_view>

namespace quendle {

enum class TraceKind {
  kMessage,
  kScript,
  kStatement,
  kState,
  kSound,
  kTimer,
  kScreen,
  kLog,
  // What a click found on its way:
  kClick,   // begins (to: the pointer, text: "X,Y") and ends (no text; from: "skipped" where a new
            // pointer kept it from the screen)
  kHit,     // an object is under the pointer (text: the region)
  kBranch,  // an `if` of a script was decided (from: FILE:LINE, text: the condition; no text where
            // no branch matched)
};

struct TraceEvent {
  TraceKind kind;
  std::string_view to;    // object or screen that it reaches
  std::string_view from;  // sender, may be empty
  std::string_view text;
  bool verifying = false;
  int depth = 0;
};

// A tool that watches what happens. The game takes no decision on it.
class Tracer {
 public:
  virtual ~Tracer() = default;
  virtual void Trace(const TraceEvent& event) = 0;
};

}  // namespace quendle
