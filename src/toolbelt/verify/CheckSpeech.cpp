#include <algorithm>

#include "base/Text.h"
#include "logic/GameVerbs.h"
#include "object/DoctorStates.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

bool Speaks(const ObjState& state) {
  return !SaysNothing(state.SoundState()) && !EqualsNoCase(state.SoundState(), "unchanged");
}

// The sound of a short animation sounds on where the state that it goes back to says "unchanged".
bool GoesOnBehind(const ModelObject& object, const ObjState& state) {
  const std::size_t cut = state.Name().rfind('-');
  const ObjState* back =
      cut == std::string::npos ? nullptr : object.State(state.Name().substr(0, cut));
  if (back == nullptr) back = object.State("default");
  return back != nullptr && EqualsNoCase(back->SoundState(), "unchanged");
}

// A state that goes back once its sound is silent needs a timer that looks, and goes on looking.
void CheckPassingState(const CheckContext& context, const ModelObject& object,
                       const ObjState& state) {
  if (!Speaks(state) || !context.flow.Passes(object, state.Name())) return;
  const ModelAnimation* animation = object.Animation(state.AnimationState());
  if (animation != nullptr && animation->Loops() && animation->Length() >= 2) return;
  if (animation != nullptr && !animation->Loops() && GoesOnBehind(object, state)) return;
  std::string text = "the passing state \"" + state.Name() + "\" speaks, and ";
  if (animation == nullptr) {
    text += "\"" + state.AnimationState() + "\" is no animation that could wait for the end";
  } else if (animation->Length() < 2) {
    text += "its animation \"" + state.AnimationState() + "\" has fewer than two frames";
  } else {
    text += "its animation \"" + state.AnimationState() + "\" doesn't loop: the sound is cut off";
  }
  context.Tell(Check::kSpeechCut, object, state.Place(), text);
}

void CheckMovingStates(const CheckContext& context, const ModelObject& object) {
  const auto speaks = std::ranges::find_if(object.states, Speaks);
  if (speaks == object.states.end() && !context.flow.RunsSound(object)) return;
  const std::string sound =
      speaks == object.states.end() ? "a statement" : "the state \"" + speaks->Name() + "\"";
  for (const ObjState& state : object.states) {
    const ModelAnimation* animation = object.Animation(state.AnimationState());
    if (Speaks(state) || animation == nullptr) continue;
    if (!animation->Loops() || animation->Length() < 2) continue;
    context.Tell(Check::kLoopStops, object, state.Place(),
                 "\"" + animation->record.name + "\" of the state \"" + state.Name() +
                     "\" stops once the sound of " + sound + " has ended");
  }
}

void CheckHover(const CheckContext& context, const ModelObject& object, const ObjState& state) {
  if (!Speaks(state) || !ContainsNoCase(state.Name(), "highlight")) return;
  context.Tell(Check::kHoverSound, object, {state.Place().file, state.Place().line + 1},
               "\"" + state.SoundState() + "\" begins anew at each move of the mouse in \"" +
                   state.Name() + "\"");
}

bool LeavesTheScreen(const std::string& message) {
  const std::vector<std::string> words = SplitTokens(message, '_');
  if (words.size() < 2) return false;
  const GameVerb verb = GameVerbOf(message, words[0]);
  return verb == GameVerb::kChangeScreen || verb == GameVerb::kSubgame;
}

// `runsound` with a change of screen behind it among the same statements.
void CheckLeaving(const CheckContext& context, const ModelObject& object, const Command& node) {
  const Command* sound = nullptr;
  for (const Command& child : node.Children()) {
    CheckLeaving(context, object, child);
    if (child.Type() != NodeType::kAction) continue;
    const Statement& statement = *child.ActionStatement();
    if (!statement.HasArgument()) continue;
    if (statement.Meaning() == StatementMeaning::kSound) {
      sound = SaysNothing(statement.Argument()) ? nullptr : &child;
    }
    const bool leaves =
        statement.Meaning() == StatementMeaning::kMessage && LeavesTheScreen(statement.Argument());
    if (!leaves || sound == nullptr) continue;
    context.Tell(Check::kSoundLeaves, object, sound->Place(),
                 "\"" + sound->Text() + "\" is cut by \"" + child.Text() + "\"");
  }
}

}  // namespace

void CheckSpeech(const CheckContext& context) {
  for (const ModelObjectRef& object : context.model.objects) {
    for (const ObjState& state : object->states) {
      CheckPassingState(context, *object, state);
      CheckHover(context, *object, state);
      const bool greets = object->IsNamed(kDoctorName) && EqualsNoCase(state.Name(), "default") &&
                          Speaks(state) && !ContainsNoCase(state.SoundState(), "subgame");
      if (greets) {
        context.Tell(Check::kGreeting, *object, {state.Place().file, state.Place().line + 1},
                     "the doctor says \"" + state.SoundState() + "\" whenever he is loaded");
      }
    }
    // What lives on a screen is cut by leaving it; what stays in view speaks on.
    if (object->role != ModelRole::kGlobal) {
      for (const ModelScript& script : object->scripts) {
        for (const auto& text : script.texts) {
          if (text->parsed != nullptr) CheckLeaving(context, *object, text->parsed->Root());
        }
      }
    }
    CheckMovingStates(context, *object);
  }
}

}  // namespace quendle
