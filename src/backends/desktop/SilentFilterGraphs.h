#pragma once

#include "platform/FilterGraph.h"

namespace quendle {

// Sound files that can't be built: the game plays on without sound.
class SilentFilterGraphs : public FilterGraphs {
 public:
  std::unique_ptr<FilterGraph> Create() override;
};

}  // namespace quendle
