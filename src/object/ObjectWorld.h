#pragma once

#include <string>
#include <string_view>

#include "base/KeyedList.h"
#include "object/GameObjectInterface.h"
#include "platform/DirectDraw.h"

namespace quendle {

class EventSink;
class ObjectFactory;
struct MediaWorld;
struct PlacedFrame;
struct ScriptWorld;
struct Watch;

// A tool that sees each frame that is drawn.
class BlitWatcher {
 public:
  virtual ~BlitWatcher() = default;
  virtual void Blitted(const std::string& object, const std::string& frame,
                       const PlacedFrame& placed, DrawStatus status) = 0;
};

// What all objects of one run share. The references outlive it.
struct ObjectWorld {
  ObjectWorld(MediaWorld& media_world, ScriptWorld& script_world, Watch& run_watch,
              ObjectFactory& object_factory)
      : media(media_world), scripts(script_world), watch(run_watch), factory(object_factory) {}
  ~ObjectWorld() { DropGlobalObjects(); }
  ObjectWorld(const ObjectWorld&) = delete;
  ObjectWorld& operator=(const ObjectWorld&) = delete;

  MediaWorld& media;
  ScriptWorld& scripts;
  Watch& watch;
  ObjectFactory& factory;

  EventSink* log = nullptr;             // the event log, once there is one
  BlitWatcher* blit_watcher = nullptr;  // a tool, or none

  ObjectList GlobalObjects{"global object"};
  // Objects whose animation timer runs; the key is the timer id as decimal text.
  KeyedList<std::weak_ptr<GameObjectInterface>> TimedObjects{"timer"};
  bool GameActive = true;         // the application has the focus: timers may act
  bool ReleasingGlobals = false;  // the pass at shutdown that spares no shared object
  long gated_ticks = 0;           // timer ticks dropped without the focus, for tools

  // The first global object of that name, case ignored; nothing without one.
  ObjectRef FindGlobalObject(std::string_view name) const;
  // False while ReleasingGlobals; otherwise whether a global object has that name.
  bool GlobalObjectExists(std::string_view name) const;
  // Empties GlobalObjects. The dying objects look names up there, so the list is empty first.
  void DropGlobalObjects();
  // Logs a message of the category "General".
  void LogGeneral(std::string_view message, int level) const;
};

// The callback of all animation timers: steps the object whose timer fired.
void OnObjectTimer(ObjectWorld& world, int id);

}  // namespace quendle
