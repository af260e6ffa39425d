// What a session shows, as fields of answers. Texts are UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "backends/headless/ScriptedBoxes.h"
#include "object/GameObjectInterface.h"
#include "toolbelt/Json.h"

namespace quendle {

class DriveSession;
class GameObjectMemento;
struct Form;

// A text of content as a JSON string.
Json TextJson(std::string_view text);
Json TextListJson(const std::vector<std::string>& texts);

Json DescribeBoxes(const std::vector<ShownBox>& boxes);

// "form" (null when none is in view) and "forms".
Json FormAnswer(DriveSession& session);

// Everything that `state` tells; before the game is on, what is known of the settings.
Json StateAnswer(DriveSession& session);

Json DescribeObject(GameObjectInterface& object);
// The same with the children in place of their names.
Json DescribeTree(GameObjectInterface& object);
// What was loaded of an object.
Json InspectObject(GameObjectInterface& object, DriveSession& session);
Json DescribeMemento(const GameObjectMemento& memento);
// The players that hold a file.
Json DescribePlayers(DriveSession& session);

}  // namespace quendle
