// Objects and state.

#include <nlohmann/json.hpp>

#include "base/Text.h"
#include "diagnostics/PointerReport.h"
#include "logic/GameLogicLayer.h"
#include "object/ForwardingObject.h"
#include "object/GameObject.h"
#include "subgames/PlayAreaObject.h"
#include "toolbelt/drive/DriveCommand.h"
#include "toolbelt/drive/ObjectPath.h"
#include "toolbelt/drive/Views.h"

namespace quendle {
namespace {

Json State(DriveSession& session, Arguments& arguments) {
  arguments.End();
  return StateAnswer(session);
}

Json Object(DriveSession& session, Arguments& arguments) {
  const ObjectRef object = ObjectAt(session, arguments.Word());
  arguments.End();
  return {{"object", DescribeObject(*object)}};
}

Json Tree(DriveSession& session, Arguments& arguments) {
  const ObjectRef object =
      ObjectAt(session, arguments.Empty() ? std::string("current") : arguments.Word());
  arguments.End();
  return {{"object", DescribeTree(*object)}};
}

Json Inspect(DriveSession& session, Arguments& arguments) {
  const ObjectRef object = ObjectAt(session, arguments.Word());
  arguments.End();
  return InspectObject(*object, session);
}

Json Memento(DriveSession& session, Arguments& arguments) {
  const std::string name = arguments.Rest();
  const ScreenKeeper* keeper = session.Logic().Keeper();
  const GameObjectMemento::Ref* memento =
      keeper == nullptr ? nullptr : keeper->Mementos().Find(name);
  if (memento == nullptr) throw CommandRefused("nothing is kept of a screen \"" + name + "\"");
  return {{"memento", DescribeMemento(**memento)}};
}

std::string PathOf(GameObjectInterface& object) {
  const GameObject* inner = InnerObject(object);
  return inner == nullptr ? object.ObjectName() : inner->WorkPath();
}

// The play area below `object` that runs on the timer; null without one.
ObjectRef PlayAreaOfTimer(const ObjectRef& object, int id) {
  if (object == nullptr) return nullptr;
  const auto* area = dynamic_cast<const PlayAreaObject*>(object.get());
  if (area != nullptr && area->GameUpdateTimerID() == id) return object;
  for (const auto& [name, child] : object->Children()) {
    if (ObjectRef found = PlayAreaOfTimer(child, id)) return found;
  }
  return nullptr;
}

std::string OwnerOf(const Globals& globals, const TimerInfo& timer) {
  const auto* timed = globals.objects.TimedObjects.Find(std::to_string(timer.id));
  if (const ObjectRef object = timed == nullptr ? nullptr : timed->lock()) return PathOf(*object);
  if (EqualsNoCase(timer.callback, "OnLogicTimer")) return "GameLogic";
  if (globals.GameLogic == nullptr) return "";
  for (const ObjectRef& screen :
       {globals.GameLogic->CurrentScreen(), globals.GameLogic->PreviousScreen()}) {
    if (const ObjectRef area = PlayAreaOfTimer(screen, timer.id)) return PathOf(*area);
  }
  return "";
}

Json Timers(DriveSession& session, Arguments& arguments) {
  arguments.End();
  const Globals* globals = session.Game().Game();
  Json list = Json::array();
  for (const TimerInfo& timer : session.Platform().timers.Running()) {
    const std::string owner = globals == nullptr ? "" : OwnerOf(*globals, timer);
    list.push_back({{"id", timer.id},
                    {"interval", timer.interval.count()},
                    {"due", timer.due.count()},
                    {"owner", TextJson(owner)},
                    {"callback", timer.callback}});
  }
  return {{"timers", std::move(list)}};
}

Json Sounds(DriveSession& session, Arguments& arguments) {
  arguments.End();
  return {{"players", DescribePlayers(session)}};
}

Json SpokenCaption(DriveSession& session, Arguments& arguments) {
  arguments.End();
  session.Logic();  // refuses without a game
  const Caption caption = session.Game().Captions().SpokenNow();
  return {{"caption", TextJson(caption.text)}, {"bottom", caption.bottom}};
}

Json SwitchTrace(DriveSession& session, Arguments& arguments) {
  const std::string word = arguments.Word();
  arguments.End();
  const bool on = EqualsNoCase(word, "on");
  if (!on && !EqualsNoCase(word, "off")) {
    arguments.Refuse("\"" + word + "\" is neither on nor off");
  }
  session.Game().SetTracer(on ? &session.Trace() : nullptr);
  return Json::object();
}

const char* KindName(TraceKind kind) {
  switch (kind) {
    case TraceKind::kMessage:
      return "message";
    case TraceKind::kScript:
      return "script";
    case TraceKind::kStatement:
      return "statement";
    case TraceKind::kState:
      return "state";
    case TraceKind::kSound:
      return "sound";
    case TraceKind::kTimer:
      return "timer";
    case TraceKind::kScreen:
      return "screen";
    case TraceKind::kLog:
      return "log";
    case TraceKind::kClick:
      return "click";
    case TraceKind::kHit:
      return "hit";
    case TraceKind::kBranch:
      return "branch";
  }
  return "";
}

Json Events(DriveSession& session, Arguments& arguments) {
  arguments.End();
  Json list = Json::array();
  for (const TracedEvent& event : session.Trace().Take()) {
    list.push_back({{"kind", KindName(event.kind)},
                    {"to", TextJson(event.to)},
                    {"from", TextJson(event.from)},
                    {"text", TextJson(event.text)},
                    {"verifying", event.verifying},
                    {"depth", event.depth}});
  }
  return {{"events", std::move(list)}};
}

Json AreasJson(const std::vector<NamedArea>& areas) {
  Json list = Json::array();
  for (const NamedArea& area : areas) {
    list.push_back({{"name", TextJson(area.name)},
                    {"x", area.area.left},
                    {"y", area.area.top},
                    {"width", area.area.Width()},
                    {"height", area.area.Height()}});
  }
  return list;
}

Json Under(DriveSession& session, Arguments& arguments) {
  const int x = static_cast<int>(arguments.Whole(0, kFrameWidth - 1));
  const int y = static_cast<int>(arguments.Whole(0, kFrameHeight - 1));
  arguments.End();
  Json list = Json::array();
  for (const ObjectUnder& object : ObjectsUnder({x, y}, session.Logic(), session.World().objects)) {
    list.push_back({{"path", TextJson(object.path)},
                    {"type", TextJson(object.type)},
                    {"hidden", object.hidden},
                    {"hit", object.hit},
                    {"state", TextJson(object.state)},
                    {"history", TextListJson(object.history)},
                    {"script", TextJson(object.script)},
                    {"region", TextJson(object.region)},
                    {"x", object.area.left},
                    {"y", object.area.top},
                    {"width", object.area.Width()},
                    {"height", object.area.Height()},
                    {"animation", TextJson(object.animation)},
                    {"frames", AreasJson(object.frames)},
                    {"regions", AreasJson(object.regions)},
                    {"timer", object.timer},
                    {"interval", object.interval},
                    {"due", object.due},
                    {"sound", TextJson(object.sound)},
                    {"sounding", object.sounding}});
  }
  return {{"under", std::move(list)}};
}

Json Trail(DriveSession& session, Arguments& arguments) {
  arguments.End();
  const ClickTrail& trail = session.Trace().Trail();
  if (trail.Empty()) throw CommandRefused("no click was traced: use `trace on` and click first");
  Json steps = Json::array();
  for (const TrailStep& step : trail.Steps()) {
    steps.push_back({{"kind", KindName(step.kind)},
                     {"to", TextJson(step.to)},
                     {"from", TextJson(step.from)},
                     {"text", TextJson(step.text)},
                     {"depth", step.depth}});
  }
  return {{"click", TextJson(trail.Place())},
          {"pointer", TextJson(trail.Pointer())},
          {"skipped", trail.Skipped()},
          {"leftOut", trail.LeftOut()},
          {"steps", std::move(steps)}};
}

}  // namespace

const CommandTable& SeeingCommands() {
  static const CommandTable kTable = {
      {"state", "the game as a whole", State},
      {"object PATH", "one object: SCREEN/child/... or global/NAME", Object},
      {"tree [SCREEN]", "the same, children nested; without a word the current screen", Tree},
      {"inspect PATH", "what was loaded of an object", Inspect},
      {"memento NAME", "what is kept of a screen", Memento},
      {"timers", "the running timers", Timers},
      {"sounds", "the players that hold a file", Sounds},
      {"caption", "the sentence that is said now, and the height it stands above", SpokenCaption},
      {"trace on|off", "watch messages, scripts, states, sounds, timers, screens, the log",
       SwitchTrace},
      {"events", "what was traced since last asked", Events},
      {"under X Y", "the objects at that point of the frame, topmost first", Under},
      {"trail", "the way of the last click that was traced", Trail},
  };
  return kTable;
}

}  // namespace quendle
