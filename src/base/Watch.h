#pragma once

#include "base/Tracer.h"
#include "base/WorkDepth.h"

namespace quendle {

// What watches over one run: the nesting counter, and a tracer when a tool wants one.
struct Watch {
  WorkDepth depth;
  Tracer* tracer = nullptr;

  void Trace(TraceKind kind, std::string_view to, std::string_view from, std::string_view text,
             bool verifying = false) {
    if (tracer != nullptr) tracer->Trace({kind, to, from, text, verifying, depth.Depth()});
  }
};

}  // namespace quendle
