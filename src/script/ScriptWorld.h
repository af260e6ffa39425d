#pragma once

#include <memory>

#include "base/KeyedList.h"

namespace quendle {

class ScriptState;
struct Watch;

// What scripts share in one run.
struct ScriptWorld {
  Watch& watch;
  KeyedList<std::shared_ptr<ScriptState>> GlobalScripts{"global script"};
};

}  // namespace quendle
