#include <algorithm>
#include <cmath>
#include <optional>

#include "base/Numbers.h"
#include "base/Text.h"
#include "logic/GameVerbs.h"
#include "logic/ScreenMeaning.h"
#include "object/DoctorStates.h"
#include "object/SurgeryReset.h"
#include "object/VerifyRules.h"
#include "toolbelt/verify/Checks.h"
#include "toolbelt/verify/ScriptWalk.h"

namespace quendle {
namespace {

bool IsPatient(const ModelObject& object) {
  return object.IsType("patient") && !object.IsNamed(kDoctorName);
}

// The tests of the engine's own check, in their order, each only if the one before passed.
void CheckTwin(const CheckContext& context, Check check, const ModelObject& patient,
               const ObjState& state) {
  if (!NeedsOwwwTwin(state.Name())) return;
  const std::string twin_name = state.Name() + "-owww";
  const ObjState* twin = patient.State(twin_name);
  const auto tell = [&](const ObjState& at, const std::string& text) {
    context.Tell(check, patient, at.Place(), text);
  };
  if (twin == nullptr) {
    std::vector<std::string> twins = patient.StateNames();
    std::erase_if(twins, [](const std::string& name) { return !ContainsNoCase(name, "owww"); });
    tell(state, "Did not find a corresponding owww state for \"" + state.Name() + "\"" +
                    DidYouMean(twin_name, twins));
    return;
  }
  const ModelAnimation* animation = patient.Animation(twin->AnimationState());
  if (animation != nullptr && animation->Loops()) {
    tell(*twin, "the animation of \"" + twin_name + "\" loops, so the state never ends by itself");
  } else if (!SaysNothing(twin->ScriptState())) {
    tell(*twin, "\"" + twin_name + "\" has the script \"" + twin->ScriptState() +
                    "\" and must not answer events");
  }
}

// A state of the patient can be hurt if its script leads to a state with "owww" in its name.
bool CanBeHurt(const ModelObject& patient, const ObjState& state) {
  const ModelScript* script = patient.Script(state.ScriptState());
  if (script == nullptr) return false;
  bool hurts = false;
  for (const auto& text : script->texts) {
    if (text->parsed == nullptr) continue;
    WalkScript(patient, *script, text->parsed->Root(), [&](const Command& node, const StateSet&) {
      hurts = hurts || ContainsNoCase(node.Text(), "owww");
    });
  }
  // Under the pointer it is hurt in the state below.
  return hurts && !ContainsNoCase(state.Name(), "highlight");
}

void CheckDoctor(const CheckContext& context, const ModelObject& doctor) {
  const FilePlace place =
      doctor.states.empty() ? doctor.name_place : FilePlace{doctor.states.front().Place().file, 0};
  if (!doctor.states_known) return;
  for (const ModelObjectRef& tool : context.model.globals) {
    if (!tool->IsType("tool")) continue;
    const std::string state = StripToolWords(tool->name) + "info";
    if (doctor.State(state) != nullptr) continue;
    context.Tell(Check::kInfoState, doctor, place,
                 "Could Not Verify the Doctor Info State: \"" + state + "\" of the tool \"" +
                     tool->name + "\"");
  }
}

// The highest N of a state "betterN", of which all below must be there.
void CheckRowOfStates(const CheckContext& context, const ModelObject& patient) {
  for (const ObjState& state : patient.states) {
    const std::string name = FoldCase(state.Name());
    if (!name.starts_with("better")) continue;
    const std::optional<double> number = ParseNumber(name.substr(6));
    if (!number || *number < 2) continue;
    const std::string before = "better" + std::to_string(std::lround(*number) - 1);
    if (patient.State(before) != nullptr) continue;
    context.Tell(Check::kGapInRow, patient, state.Place(),
                 "the state \"" + state.Name() + "\" has no \"" + before + "\" before it");
  }
}

bool EntersHelp(const ContentModel& model, HelpPlace place) {
  return std::ranges::any_of(model.screens, [&](const auto& screen) {
    return screen->IsRoom() && HelpPlaceOf(screen->name) == place;
  });
}

bool HasPatients(const ContentModel& model) {
  return std::ranges::any_of(model.objects, [](const auto& o) { return IsPatient(*o); });
}

bool HasTools(const ContentModel& model) {
  return std::ranges::any_of(model.globals, [](const auto& o) {
    return o->Class() == ObjectClass::kTool && !o->IsNamed(ToolNameOf(kBareHand));
  });
}

// When the game sends the doctor to a state, if the content ever brings it about.
struct Occasion {
  bool possible;
  const char* when;
};

Occasion OccasionOf(DoctorState state, const ContentModel& model) {
  switch (state) {
    case DoctorState::kTryAgain:
      return {HasPatients(model), "a patient was hurt on Easy"};
    case DoctorState::kStartOver:
      return {HasPatients(model), "a patient was hurt"};
    case DoctorState::kAlreadyHaveOne:
      return {HasTools(model), "a tool is offered twice"};
    case DoctorState::kTooMany:
      return {HasTools(model), "the bar is full"};
    case DoctorState::kHelpToolItem:
      return {HasTools(model), "the first tool is won"};
    case DoctorState::kHelpMedicalBook:
      return {EntersHelp(model, HelpPlace::kMedicalBook), "floor1hall1 is entered"};
    case DoctorState::kHelpElevator:
      return {EntersHelp(model, HelpPlace::kElevator), "the elevator is entered"};
    case DoctorState::kHelpToolRoom:
      return {EntersHelp(model, HelpPlace::kToolRoom), "a room of tools is entered"};
    case DoctorState::kHelpPatientRoom:
      return {EntersHelp(model, HelpPlace::kPatientRoom), "a patient's room is entered"};
  }
  return {false, ""};
}

void CheckSentStates(const CheckContext& context, const ModelObject& doctor) {
  if (!doctor.states_known) return;
  const FilePlace place =
      doctor.states.empty() ? doctor.name_place : FilePlace{doctor.states.front().Place().file, 0};
  for (const DoctorState state : kDoctorStates) {
    const Occasion occasion = OccasionOf(state, context.model);
    if (!occasion.possible || doctor.State(NameOf(state)) != nullptr) continue;
    context.Tell(Check::kDoctorState, doctor, place,
                 std::string("Did not find a valid object state: the game sends the doctor to \"") +
                     NameOf(state) + "\" when " + occasion.when);
  }
}

// Without a doctor nobody tells a child that a treatment hurt.
void CheckNoDoctor(const CheckContext& context) {
  for (const ModelObjectRef& object : context.model.objects) {
    if (object->IsNamed(kDoctorName)) return;
  }
  for (const ModelObjectRef& object : context.model.objects) {
    if (!IsPatient(*object)) continue;
    context.Tell(Check::kDoctorState, *object, object->name_place,
                 "there is a patient \"" + object->name + "\", and no global object \"doctor\"");
  }
}

void CheckSurgery(const CheckContext& context, const ModelObject& screen) {
  const ModelObject* machine = nullptr;
  const SurgeryReset* wanted = nullptr;
  for (const ModelChild& child : screen.children) {
    if (child.object == nullptr) continue;
    if (child.object->IsNamed(kSurgeryMachineName)) machine = child.object.get();
    if (!child.object->IsType("patient")) continue;
    for (const SurgeryReset& reset : kSurgeryResets) {
      if (child.object->IsNamed(reset.patient)) wanted = &reset;
    }
  }
  if (wanted == nullptr) return;
  if (machine != nullptr &&
      (!machine->states_known || machine->State(wanted->machine_state) != nullptr)) {
    return;
  }
  context.Tell(Check::kSurgery, screen, screen.name_place,
               "the patient \"" + std::string(wanted->patient) + "\" needs a \"" +
                   std::string(kSurgeryMachineName) + "\" with a state \"" +
                   std::string(wanted->machine_state) + "\" beside it");
}

}  // namespace

void CheckPatients(const CheckContext& context) {
  for (const ModelObjectRef& object : context.model.objects) {
    if (IsPatient(*object)) {
      CheckRowOfStates(context, *object);
      for (const ObjState& state : object->states) {
        const Check check = CanBeHurt(*object, state) ? Check::kOwwwTwin : Check::kUnusedTwin;
        CheckTwin(context, check, *object, state);
      }
    }
    if (object->IsNamed(kDoctorName)) CheckDoctor(context, *object);
    CheckSurgery(context, *object);
  }
  if (const ModelObject* doctor = context.model.Global(kDoctorName)) {
    CheckSentStates(context, *doctor);
  } else {
    CheckNoDoctor(context);
  }
}

}  // namespace quendle
