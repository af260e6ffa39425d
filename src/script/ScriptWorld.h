#pragma once

#include <memory>

#include "base/KeyedList.h"
#include "script/ActionTable.h"

namespace quendle {

class ScriptState;
struct Watch;

// What scripts share in one run.
struct ScriptWorld {
  explicit ScriptWorld(Watch& run_watch) : watch(run_watch) {}

  Watch& watch;
  KeyedList<std::shared_ptr<ScriptState>> GlobalScripts{"global script"};
  ActionTable actions;
};

}  // namespace quendle
