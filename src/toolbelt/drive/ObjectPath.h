#pragma once

#include <string>
#include <string_view>

#include "object/GameObjectInterface.h"

namespace quendle {

class DriveSession;

// The object at "SCREEN/child/...": SCREEN is "current", "previous", "tools", "cursors" or the name
// of a live screen; "global/NAME" begins at a global object. Case is ignored. A path that leads
// nowhere refuses the command and tells the nearest name.
ObjectRef ObjectAt(DriveSession& session, std::string_view path);

}  // namespace quendle
