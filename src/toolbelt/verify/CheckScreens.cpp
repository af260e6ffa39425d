#include <algorithm>

#include "base/Text.h"
#include "logic/ScreenMeaning.h"
#include "object/DoctorStates.h"
#include "platform/Geometry.h"
#include "screens/ScreenNames.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

bool HoldsPatient(const ModelObject& screen) {
  return std::ranges::any_of(screen.children, [](const ModelChild& child) {
    return child.object != nullptr && child.object->IsType("patient") &&
           !child.object->IsNamed(kDoctorName);
  });
}

void CheckName(const CheckContext& context, const ModelObject& screen) {
  const std::string& name = screen.name;
  const auto tell = [&](Check check, const std::string& text) {
    context.Tell(check, screen, screen.name_place, "the screen \"" + name + "\" " + text);
  };
  const bool patient = HoldsPatient(screen);
  const bool bar = ShowsToolBar(name);
  if (!patient && screen.children_known && HelpPlaceOf(name) == HelpPlace::kPatientRoom) {
    tell(Check::kNoPatient, "is a patient's room by its name and has no patient");
  }
  if (patient && !bar) tell(Check::kNoBar, "has a patient and, by its name, no tool bar");
  if (screen.Class() == ObjectClass::kSubgame) {
    if (bar) tell(Check::kBarOverGame, "is an arcade game and, by its name, has the tool bar");
    return;  // never saved anyway
  }
  for (const std::string_view word : kUnsavedWords) {
    // A tutorial is meant to begin anew.
    if (!ContainsNoCase(name, word) || FindNoCase(name, kTutorialWord) == 0) continue;
    tell(Check::kNotSaved, "holds \"" + std::string(word) + "\", and such a screen isn't saved");
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
    if (IsLayer(screen->name)) continue;
    CheckName(context, *screen);
    if (screen->states_known && screen->animations_known && !Covers(*screen)) {
      context.Tell(Check::kNotCovered, *screen, screen->name_place,
                   "the screen \"" + screen->name + "\" shows no frame of 800 by 600 at 0,0");
    }
    if (reached.contains(FoldCase(screen->name))) continue;
    context.Tell(Check::kUnreachable, *screen, screen->name_place,
                 "no message leads from \"" + std::string(kFirstScreenName) + "\" to \"" +
                     screen->name + "\"");
  }
}

}  // namespace quendle
