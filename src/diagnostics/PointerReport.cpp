#include "diagnostics/PointerReport.h"

#include <algorithm>
#include <limits>

#include "base/Text.h"
#include "logic/GameLogicLayer.h"
#include "media/MediaWorld.h"
#include "media/PlacedFrame.h"
#include "media/SoundState.h"
#include "object/ForwardingObject.h"
#include "platform/Ports.h"
#include "platform/TimerService.h"
#include "script/ScriptState.h"

namespace quendle {
namespace {

// Coordinates of an object are 16 bits wide: a point further off is on nothing.
bool Fits(int coordinate) {
  return coordinate >= std::numeric_limits<std::int16_t>::min() &&
         coordinate <= std::numeric_limits<std::int16_t>::max();
}

Rect MovedBy(const Rect& area, Point by) {
  return {area.left + by.x, area.top + by.y, area.right + by.x, area.bottom + by.y};
}

class Finder {
 public:
  Finder(Point at, const GameLogicLayer& logic, const ObjectWorld& world)
      : at_(at), world_(world), pointer_(logic.CurrentCursor() + "cursor") {}

  // `origin` is where the parent stands on the frame.
  void Visit(GameObjectInterface& object, Point origin) {
    if (EqualsNoCase(object.ObjectName(), pointer_) ||
        EqualsNoCase(object.ObjectName(), "personcursor")) {
      return;
    }
    if (GameObject* inner = InnerObject(object)) Look(object, *inner, origin);
    if (!object.Visible()) return;
    const Point here{origin.x + object.xpos(), origin.y + object.ypos()};
    for (const auto& entry : object.Children()) Visit(*entry.value, here);
  }

  // In the order in which they are drawn.
  std::vector<ObjectUnder> Take() { return std::move(found_); }

 private:
  void Look(GameObjectInterface& object, const GameObject& inner, Point origin) {
    ObjectUnder under;
    const int x = at_.x - origin.x;
    const int y = at_.y - origin.y;
    if (!Fits(x) || !Fits(y)) return;
    AddFrames(under, inner, origin);
    const bool on =
        object.AreWeOnTheObject(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y));
    under.hidden = !object.Visible();
    under.hit = on && !under.hidden;
    const auto covers = [this](const NamedArea& frame) { return frame.area.Holds(at_); };
    if (!on && std::none_of(under.frames.begin(), under.frames.end(), covers)) return;
    const Point corner{origin.x + object.xpos(), origin.y + object.ypos()};
    under.area = {corner.x, corner.y, corner.x + object.width(), corner.y + object.height()};
    if (const Region* region = inner.RegionUnder(x, y); region != nullptr && under.hit) {
      under.region = region->Name();
    }
    Describe(under, object, inner);
    found_.push_back(std::move(under));
  }

  static void AddFrames(ObjectUnder& under, const GameObject& inner, Point origin) {
    for (const FrameRef& frame : inner.CurrentFrames()) {
      const Point corner{origin.x + ResolveFramePosition(inner.xpos(), frame->PlaceX),
                         origin.y + ResolveFramePosition(inner.ypos(), frame->PlaceY)};
      under.frames.push_back(
          {frame->FrameName, MovedBy({0, 0, frame->SourceWidth, frame->SourceHeight}, corner)});
      const auto* regions = EqualsNoCase(frame->RegionKey, "nothing")
                                ? nullptr
                                : inner.FrameRegions().Find(frame->RegionKey);
      if (regions == nullptr) continue;
      for (const Region& region : *regions) {
        // All edges of a region belong to it.
        under.regions.push_back(
            {region.Name(),
             MovedBy({region.X1(), region.Y1(), region.X2() + 1, region.Y2() + 1}, corner)});
      }
    }
  }

  void Describe(ObjectUnder& under, GameObjectInterface& object, const GameObject& inner) const {
    under.path = inner.WorkPath();
    under.type = object.ObjectType();
    under.state = object.CurrentState();
    under.history = inner.StateHistory();
    if (const ScriptState* script = inner.CurrentScript()) under.script = script->Name();
    under.animation = inner.CurrentAnimationName();
    under.sound = inner.CurrentSoundName();
    if (const auto* sound = inner.Sounds().Find(under.sound))
      under.sounding = (*sound)->IsPlaying();
    AddTimer(under, object.TimerID());
  }

  void AddTimer(ObjectUnder& under, int id) const {
    if (id == 0) return;
    const Ports& ports = world_.media.ports;
    for (const TimerInfo& timer : ports.timers.Running()) {
      if (timer.id != id) continue;
      under.timer = id;
      under.interval = static_cast<int>(timer.interval.count());
      under.due = static_cast<int>((timer.due - ports.clock.Monotonic()).count());
    }
  }

  Point at_;
  const ObjectWorld& world_;
  std::string pointer_;
  std::vector<ObjectUnder> found_;
};

}  // namespace

std::vector<ObjectUnder> ObjectsUnder(Point at, const GameLogicLayer& logic,
                                      const ObjectWorld& world) {
  Finder finder(at, logic, world);
  const bool tools = EqualsNoCase(logic.ToolsState(), "on");
  const ObjectRef layers[] = {logic.CurrentScreen(), tools ? logic.ToolsScreen() : nullptr,
                              logic.DialogActive() ? logic.CursorsScreen() : nullptr};
  for (const ObjectRef& layer : layers) {
    if (layer != nullptr) finder.Visit(*layer, {0, 0});
  }
  std::vector<ObjectUnder> found = finder.Take();
  std::reverse(found.begin(), found.end());
  return found;
}

}  // namespace quendle
