#pragma once

#include "platform/Faults.h"
#include "platform/FilterGraph.h"

namespace quendle {

// Players without a decoder: no file can be rendered, so every sound is silence. "CreateGraph" can
// be planned to fail.
class HeadlessFilterGraphs : public FilterGraphs {
 public:
  // `faults` must outlive this object.
  explicit HeadlessFilterGraphs(Faults& faults) : faults_(faults) {}
  std::unique_ptr<FilterGraph> Create() override;

 private:
  Faults& faults_;
};

}  // namespace quendle
