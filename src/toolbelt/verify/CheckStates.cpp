#include <set>
#include <utility>

#include "base/Text.h"
#include "object/VerifyRules.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

// The lines of a state's record.
FilePlace LineOf(const ObjState& state, int line) {
  return {state.Place().file, state.Place().line + line};
}

template <class List, class Name>
std::vector<std::string> Names(const List& list, Name name) {
  std::vector<std::string> names;
  for (const auto& entry : list) names.push_back(name(entry));
  return names;
}

void CheckSound(const CheckContext& context, const ModelObject& object, const ObjState& state) {
  const std::string& name = state.SoundState();
  if (!object.sounds_known || SaysNothing(name) || EqualsNoCase(name, "unchanged") ||
      object.Sound(name) != nullptr) {
    return;
  }
  context.Tell(Check::kUnknownSound, object, LineOf(state, 1),
               "Could Not Verify Sound State of \"" + state.Name() +
                   "\": Did not find Sound State \"" + name + "\"" +
                   DidYouMean(name, Names(object.sounds, [](const auto& s) { return s.name; })));
}

void CheckAnimation(const CheckContext& context, const ModelObject& object, const ObjState& state) {
  const std::string& name = state.AnimationState();
  if (!object.animations_known || SaysNothing(name) || EqualsNoCase(name, "unchanged") ||
      EqualsNoCase(name, "terminate") || object.Animation(name) != nullptr) {
    return;
  }
  context.Tell(
      Check::kUnknownAnimation, object, LineOf(state, 2),
      "Could Not Verify Animation State of \"" + state.Name() +
          "\": Did not find the Animation State \"" + name + "\"" +
          DidYouMean(name, Names(object.animations, [](const auto& a) { return a.record.name; })));
}

void CheckScript(const CheckContext& context, const ModelObject& object, const ObjState& state) {
  const std::string& name = state.ScriptState();
  if (!object.scripts_known || SaysNothing(name) || object.Script(name) != nullptr) return;
  context.Tell(Check::kUnknownScript, object, LineOf(state, 3),
               "Could Not Verify Script State of \"" + state.Name() +
                   "\": Could Not Find the Script Named \"" + name + "\"" +
                   DidYouMean(name, Names(object.scripts, [](const auto& s) { return s.name; })));
}

void CheckSequences(const CheckContext& context, const ModelObject& object,
                    const ModelAnimation& animation) {
  const AnimationRecord& record = animation.record;
  int line = record.place.line + 3;
  for (const std::vector<std::string>& names : record.frame_sets) {
    const FilePlace place{record.place.file, ++line};
    if (names.empty()) {
      context.Tell(Check::kEmptySequence, object, place,
                   "animation \"" + record.name + "\" has a blank line of frame names");
    }
    for (const std::string& name : names) {
      if (object.Frame(name) != nullptr) continue;
      context.Tell(Check::kUnknownFrame, object, place,
                   "Did not Successfully Verify the Animation State \"" + record.name +
                       "\": Did not find Animation Frame \"" + name + "\"" +
                       DidYouMean(name, Names(object.frames,
                                              [](const auto& f) { return f.frame.FrameName; })));
    }
  }
}

// The engine asks for it, whether anything leads there or not.
bool IsTwin(const ModelObject& object, const ObjState& state) {
  constexpr std::string_view kEnd = "-owww";
  const std::string name = FoldCase(state.Name());
  return object.IsType("patient") && name.ends_with(kEnd) &&
         NeedsOwwwTwin(name.substr(0, name.size() - kEnd.size())) &&
         object.State(name.substr(0, name.size() - kEnd.size())) != nullptr;
}

// Objects that share a state file may each enter other states of it.
void CheckIdleStates(const CheckContext& context) {
  std::set<std::pair<std::string, int>> entered;
  const auto key = [](const ObjState& state) {
    return std::pair(state.Place().file, state.Place().line);
  };
  for (const ModelObjectRef& object : context.model.objects) {
    for (const ObjState& state : object->states) {
      // The game itself leads cells through their states.
      if (object->role == ModelRole::kCell || context.flow.Enters(*object, state.Name()) ||
          IsTwin(*object, state)) {
        entered.insert(key(state));
      }
    }
  }
  for (const ModelObjectRef& object : context.model.objects) {
    for (const ObjState& state : object->states) {
      if (!entered.insert(key(state)).second) continue;
      context.Tell(Check::kIdleState, *object, state.Place(),
                   "nothing leads to the state \"" + state.Name() + "\"");
    }
  }
}

}  // namespace

bool SaysNothing(const std::string& name) { return EqualsNoCase(name, "nothing"); }

void CheckStates(const CheckContext& context) {
  for (const ModelObjectRef& object : context.model.objects) {
    for (const ObjState& state : object->states) {
      CheckSound(context, *object, state);
      CheckAnimation(context, *object, state);
      CheckScript(context, *object, state);
    }
    if (!object->animations_known) continue;
    for (const ModelAnimation& animation : object->animations) {
      CheckSequences(context, *object, animation);
    }
  }
  CheckIdleStates(context);
}

}  // namespace quendle
