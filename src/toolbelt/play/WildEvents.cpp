#include "toolbelt/play/WildEvents.h"

#include <algorithm>

#include "logic/GameLogicLayer.h"
#include "toolbelt/drive/DriveSession.h"

namespace quendle {
namespace {

// In hundredths of all events; what is left lets time pass.
constexpr int kPointer = 72;
constexpr int kKeys = 1;  // Esc leads out of the game: seldom, so that games get far
constexpr int kFocus = 2;

constexpr int kShortTime = 200;   // milliseconds
constexpr int kLongTime = 20000;  // longer than any sentence
constexpr int kEscape = 27;
constexpr int kButtons = 12;  // the elements of Picture1 that a form may have

struct Target {
  Point corner;
  Size size;
};

// The visible objects below one, with their corners on the frame.
void AddTargets(GameObjectInterface& object, Point corner, std::vector<Target>& targets) {
  for (const auto& [name, child] : object.Children()) {
    if (!child->Visible()) continue;
    const Point at{corner.x + child->xpos(), corner.y + child->ypos()};
    targets.push_back({at, {child->width(), child->height()}});
    AddTargets(*child, at, targets);
  }
}

std::string At(const char* event, Point at) {
  return std::string(event) + " " + std::to_string(at.x) + " " + std::to_string(at.y);
}

}  // namespace

int WildEvents::Pick(int count) { return static_cast<int>(random_.Rnd() * count); }

std::string WildEvents::Next(DriveSession& session) {
  if (session.Platform().forms.InView() != nullptr) return FormEvent();
  int kind = Pick(100);
  if (kind < kPointer) return PointerEvent(session);
  if ((kind -= kPointer) < kKeys) {
    return "key " + std::to_string(Pick(2) > 0 ? kEscape : Pick(256));
  }
  if ((kind -= kKeys) < kFocus) return Pick(3) > 0 ? "focus on" : "focus off";
  return "tick " + std::to_string(10 + Pick(Pick(6) > 0 ? kShortTime : kLongTime));
}

std::string WildEvents::PointerEvent(DriveSession& session) {
  const Point at = Pick(5) > 0 ? PlaceAtAnObject(session) : PlaceAnywhere();
  switch (Pick(9)) {
    case 0:
      return At("click", at) + " right";
    case 1:
      return At("click", at) + " middle";
    case 2:
    case 3:
    case 4:
      return At("move", at);
    default:
      return At("click", at);
  }
}

// Now and then outside the frame: a window may be larger, and a pointer leaves it.
Point WildEvents::PlaceAnywhere() {
  constexpr int kMargin = 40;
  return {Pick(kFrameWidth + 2 * kMargin) - kMargin, Pick(kFrameHeight + 2 * kMargin) - kMargin};
}

Point WildEvents::PlaceAtAnObject(DriveSession& session) {
  const GameLogicLayer& logic = session.Logic();
  std::vector<Target> targets;
  if (logic.CurrentScreen() != nullptr) AddTargets(*logic.CurrentScreen(), {}, targets);
  if (logic.ToolsState() == "on" && logic.ToolsScreen() != nullptr) {
    AddTargets(*logic.ToolsScreen(), {}, targets);
  }
  if (logic.DialogActive() && logic.CursorsScreen() != nullptr) {
    AddTargets(*logic.CursorsScreen(), {}, targets);
  }
  if (targets.empty()) return PlaceAnywhere();
  const Target& target = targets[static_cast<std::size_t>(Pick(static_cast<int>(targets.size())))];
  return {target.corner.x + Pick(std::max(target.size.width, 1)),
          target.corner.y + Pick(std::max(target.size.height, 1))};
}

std::string WildEvents::FormEvent() {
  return Pick(10) > 0 ? "press " + std::to_string(Pick(kButtons)) : "close";
}

}  // namespace quendle
