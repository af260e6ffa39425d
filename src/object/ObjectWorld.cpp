#include "object/ObjectWorld.h"

#include <utility>

#include "base/EventSink.h"

namespace quendle {

ObjectRef ObjectWorld::FindGlobalObject(std::string_view name) const {
  for (const auto& entry : GlobalObjects) {
    if (EqualsNoCase(entry.value->ObjectName(), name)) return entry.value;
  }
  return nullptr;
}

bool ObjectWorld::GlobalObjectExists(std::string_view name) const {
  return !ReleasingGlobals && FindGlobalObject(name) != nullptr;
}

void ObjectWorld::DropGlobalObjects() {
  ObjectList dropped = std::exchange(GlobalObjects, ObjectList("global object"));
}

void ObjectWorld::LogGeneral(std::string_view message, int level) const {
  if (log != nullptr) log->LogEvent(message, level, "General");
}

void OnObjectTimer(ObjectWorld& world, int id) {
  if (!world.GameActive) {
    ++world.gated_ticks;
    return;
  }
  // The step may remove this entry and add others: ids are unique, so one strong copy of the match
  // is all that the walk needs.
  std::weak_ptr<GameObjectInterface>* entry = world.TimedObjects.Find(std::to_string(id));
  if (entry == nullptr) return;
  ObjectRef object = entry->lock();
  if (object != nullptr && object->TimerID() == id) object->UpdateAnimationState();
}

}  // namespace quendle
