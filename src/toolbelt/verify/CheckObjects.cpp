#include <optional>

#include "base/Text.h"
#include "logic/GameVerbs.h"
#include "screens/ScreenNames.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

// The frame that places an object in its first state, if it has one.
const AnimationFrame* FirstFrame(const ModelObject& object, const Directives* line) {
  const ObjState* state = object.State(object.FirstState(line));
  if (state == nullptr) return nullptr;
  const ModelAnimation* animation = object.Animation(state->AnimationState());
  if (animation == nullptr || animation->spline != nullptr) return nullptr;
  if (animation->record.frame_sets.empty() || animation->record.frame_sets.front().empty()) {
    return nullptr;
  }
  const ModelFrame* frame = object.Frame(animation->record.frame_sets.front().front());
  return frame == nullptr ? nullptr : &frame->frame;
}

void CheckPlacement(const CheckContext& context, const ModelObject& parent,
                    const ModelChild& child) {
  const ModelObject& object = *child.object;
  const AnimationFrame* frame = FirstFrame(object, &child.directives);
  if (frame == nullptr) return;
  const auto overrides = [](const std::optional<std::int16_t>& said, std::int32_t placed) {
    return said && placed >= 0 && placed != *said;
  };
  if (!overrides(child.directives.xpos, frame->PlaceX) &&
      !overrides(child.directives.ypos, frame->PlaceY)) {
    return;
  }
  context.Tell(Check::kPlacementWins, parent, child.line.place,
               "frame \"" + frame->FrameName + "\" of \"" + object.name + "\" puts it at " +
                   std::to_string(frame->PlaceX) + "," + std::to_string(frame->PlaceY) +
                   ", whatever this line says");
}

void CheckPlayArea(const CheckContext& context, const ModelObject& parent,
                   const ModelChild& child) {
  const ModelObject& area = *child.object;
  const AnimationFrame* frame = FirstFrame(area, &child.directives);
  const bool moved = child.directives.xpos.value_or(0) != 0 ||
                     child.directives.ypos.value_or(0) != 0 ||
                     (frame != nullptr && (frame->PlaceX > 0 || frame->PlaceY > 0));
  if (!moved) return;
  context.Tell(Check::kPlayAreaPlace, parent, child.line.place,
               "the play area \"" + area.name + "\" must stand at 0,0");
}

void CheckFirstState(const CheckContext& context, const ModelObject& object, const Directives* line,
                     const FilePlace& place) {
  if (!object.states_known || !object.FirstState(line).empty()) return;
  context.Tell(Check::kNoFirstState, object, place,
               "\"" + object.name + "\" has no state \"default\" and no directive names another");
}

}  // namespace

void CheckObjects(const CheckContext& context) {
  for (const ModelObjectRef& object : context.model.objects) {
    if (object->role == ModelRole::kScreen || object->role == ModelRole::kGlobal) {
      // A global object may get its state from the list that takes it in.
      const bool placed = object->role == ModelRole::kGlobal && !object->parents.empty();
      if (!placed) CheckFirstState(context, *object, nullptr, object->name_place);
    }
    if (object->Class() == ObjectClass::kMenu && !object->children.empty()) {
      context.Tell(Check::kMenuChildren, *object, {object->file, 8},
                   "the menu \"" + object->name + "\" drops the children of its list");
    }
    for (const ModelChild& child : object->children) {
      if (child.object == nullptr) continue;
      CheckFirstState(context, *child.object, &child.directives, child.line.place);
      if (child.object->IsPlayArea()) {
        CheckPlayArea(context, *object, child);
      } else {
        CheckPlacement(context, *object, child);
      }
    }
  }
  for (const std::string_view name : kFixedScreens) {
    if (context.model.Screen(name) != nullptr) continue;
    context.findings.Add(Check::kNoFixedScreen, "", {"Info\\screens.txt", 0},
                         "there is no screen \"" + std::string(name) + "\"" +
                             DidYouMean(std::string(name), context.model.ScreenNames()));
  }
  const std::string hand = PointerNameOf(kBareHand);
  if (context.model.Global(hand) == nullptr) {
    context.findings.Add(Check::kNoHand, "", {"Info\\globalgameobjects.txt", 0},
                         "there is no global object \"" + hand + "\"" +
                             DidYouMean(hand, context.model.GlobalNames()));
  }
}

}  // namespace quendle
