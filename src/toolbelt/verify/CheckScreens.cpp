#include <algorithm>

#include "base/Text.h"
#include "platform/Geometry.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

bool HoldsPatient(const ModelObject& screen) {
  return std::ranges::any_of(screen.children, [](const ModelChild& child) {
    return child.object != nullptr && child.object->IsType("patient") &&
           !child.object->IsNamed("doctor");
  });
}

bool HoldsAny(const std::string& name, std::initializer_list<std::string_view> words) {
  return std::ranges::any_of(words, [&](std::string_view w) { return ContainsNoCase(name, w); });
}

void CheckName(const CheckContext& context, const ModelObject& screen) {
  const std::string& name = screen.name;
  const auto tell = [&](Check check, const std::string& text) {
    context.Tell(check, screen, screen.name_place, "the screen \"" + name + "\" " + text);
  };
  const bool patient = HoldsPatient(screen);
  const bool bar = HoldsAny(name, {"hall", "room"});
  if (!patient && screen.children_known &&
      !HoldsAny(name, {"empty", "hall", "elevator", "screen"})) {
    tell(Check::kNoPatient, "is a patient's room by its name and has no patient");
  }
  if (patient && !bar) tell(Check::kNoBar, "has a patient and, by its name, no tool bar");
  if (screen.IsType("subgame")) {
    if (bar) tell(Check::kBarOverGame, "is an arcade game and, by its name, has the tool bar");
    return;  // never saved anyway
  }
  for (const char* word : {"tutorial", "cursors", "square", "shooter"}) {
    // A tutorial is meant to begin anew.
    if (!ContainsNoCase(name, word) || FindNoCase(name, "tutorial") == 0) continue;
    tell(Check::kNotSaved, std::string("holds \"") + word + "\", and such a screen isn't saved");
  }
}

// Some frame of the first picture that a screen shows fills the whole frame of the game.
bool Covers(const ModelObject& screen) {
  const ObjState* state = screen.State(screen.FirstState(nullptr));
  const ModelAnimation* animation =
      state == nullptr ? nullptr : screen.Animation(state->AnimationState());
  if (animation == nullptr) return false;
  return std::ranges::any_of(animation->record.frame_sets, [&](const auto& names) {
    const ModelFrame* frame = names.empty() ? nullptr : screen.Frame(names.front());
    // A placement of 0, or none where the screen stands at 0.
    return frame != nullptr && frame->frame.PlaceX <= 0 && frame->frame.PlaceY <= 0 &&
           frame->frame.SourceWidth >= kFrameWidth && frame->frame.SourceHeight >= kFrameHeight;
  });
}

}  // namespace

void CheckScreens(const CheckContext& context) {
  const std::set<std::string> reached = context.flow.ReachableScreens();
  for (const ModelObjectRef& screen : context.model.screens) {
    if (screen->IsNamed("tools") || screen->IsNamed("cursors")) continue;
    CheckName(context, *screen);
    if (screen->states_known && screen->animations_known && !Covers(*screen)) {
      context.Tell(Check::kNotCovered, *screen, screen->name_place,
                   "the screen \"" + screen->name + "\" shows no frame of 800 by 600 at 0,0");
    }
    if (reached.contains(FoldCase(screen->name))) continue;
    context.Tell(Check::kUnreachable, *screen, screen->name_place,
                 "no message leads from \"introscreen\" to \"" + screen->name + "\"");
  }
}

}  // namespace quendle
