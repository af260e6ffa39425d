#include "toolbelt/drive/ObjectPath.h"

#include <vector>

#include "base/FatalError.h"
#include "base/Text.h"
#include "logic/GameLogicLayer.h"
#include "toolbelt/drive/Arguments.h"
#include "toolbelt/drive/DriveSession.h"

namespace quendle {
namespace {

[[noreturn]] void RefuseName(const std::string& what, const std::string& name,
                             const std::vector<std::string>& known) {
  throw CommandRefused("there is no " + what + " \"" + name + "\"" + DidYouMean(name, known));
}

ObjectRef CachedScreen(const GameLogicLayer& logic, const std::string& name) {
  std::vector<std::string> known = {"current", "previous", "tools", "cursors", "global"};
  std::vector<ObjectRef> live = {logic.CurrentScreen()};
  if (const ScreenKeeper* keeper = logic.Keeper()) {
    for (const auto& [key, entry] : keeper->Cache()) live.push_back(entry.m_ptrGameObject);
  }
  // Subgames and tutorials never enter the cache. A previous one may share its name with a screen
  // that does, which is the one that play goes on with.
  live.push_back(logic.PreviousScreen());
  for (const ObjectRef& screen : live) {
    if (screen == nullptr) continue;
    if (EqualsNoCase(screen->ObjectName(), name)) return screen;
    known.push_back(screen->ObjectName());
  }
  RefuseName("live screen", name, known);
}

ObjectRef ScreenAt(const GameLogicLayer& logic, const std::string& name) {
  struct Slot {
    const char* name;
    const ObjectRef& screen;
  };
  for (const Slot& slot :
       {Slot{"current", logic.CurrentScreen()}, Slot{"previous", logic.PreviousScreen()},
        Slot{"tools", logic.ToolsScreen()}, Slot{"cursors", logic.CursorsScreen()}}) {
    if (!EqualsNoCase(slot.name, name)) continue;
    if (slot.screen == nullptr) throw CommandRefused("there is no " + name + " screen now");
    return slot.screen;
  }
  return CachedScreen(logic, name);
}

}  // namespace

ObjectRef ObjectAt(DriveSession& session, std::string_view path) {
  const GameLogicLayer& logic = session.Logic();
  const std::vector<std::string> names = SplitTokens(path, '/');
  if (names.empty()) throw CommandRefused("a path begins with a screen, or with \"global\"");
  ObjectRef object;
  std::size_t next = 1;
  if (EqualsNoCase(names[0], "global")) {
    if (names.size() < 2) throw CommandRefused("\"global\" needs the name of an object");
    const ObjectWorld& world = session.World().objects;
    object = world.FindGlobalObject(names[1]);
    if (object == nullptr) RefuseName("global object", names[1], world.GlobalObjects.Keys());
    next = 2;
  } else {
    object = ScreenAt(logic, names[0]);
  }
  for (; next < names.size(); ++next) {
    const ObjectRef* child = object->Children().Find(names[next]);
    if (child == nullptr) {
      RefuseName("child of \"" + object->ObjectName() + "\" named", names[next],
                 object->Children().Keys());
    }
    object = ObjectRef(*child);
  }
  return object;
}

}  // namespace quendle
