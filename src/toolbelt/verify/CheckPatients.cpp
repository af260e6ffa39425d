#include <algorithm>
#include <cmath>
#include <optional>

#include "base/Numbers.h"
#include "base/Text.h"
#include "object/VerifyRules.h"
#include "toolbelt/verify/Checks.h"
#include "toolbelt/verify/ScriptWalk.h"

namespace quendle {
namespace {

bool IsPatient(const ModelObject& object) {
  return object.IsType("patient") && !object.IsNamed("doctor");
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

struct Sent {
  const char* state;
  bool applies;
  const char* when;
};

void CheckSentStates(const CheckContext& context, const ModelObject& doctor) {
  if (!doctor.states_known) return;
  const ContentModel& model = context.model;
  const bool patients =
      std::ranges::any_of(model.objects, [](const auto& o) { return IsPatient(*o); });
  const bool tools = std::ranges::any_of(
      model.globals, [](const auto& o) { return o->IsType("tool") && !o->IsNamed("handtool"); });
  const auto screen = [&](auto fits) {
    return std::ranges::any_of(model.screens, [&](const auto& s) {
      return !s->IsNamed("tools") && !s->IsNamed("cursors") && fits(s->name);
    });
  };
  const auto holds = [](const std::string& name, const char* word) {
    return ContainsNoCase(name, word);
  };
  const Sent sent[] = {
      {"tryagain", patients, "a patient was hurt on Easy"},
      {"startover", patients, "a patient was hurt"},
      {"alreadyhaveone", tools, "a tool is offered twice"},
      {"toomany", tools, "the bar is full"},
      {"helptoolitem", tools, "the first tool is won"},
      {"helpmedicalbook", model.Screen("floor1hall1") != nullptr, "floor1hall1 is entered"},
      {"helpelevator", model.Screen("elevator") != nullptr, "the elevator is entered"},
      {"helptoolroom", screen([&](const std::string& name) {
         return holds(name, "empty") && !holds(name, "general");
       }),
       "a room of tools is entered"},
      {"helppatientroom", screen([&](const std::string& name) {
         return !holds(name, "empty") && !holds(name, "hall") && !holds(name, "elevator") &&
                !holds(name, "screen");
       }),
       "a patient's room is entered"},
  };
  const FilePlace place =
      doctor.states.empty() ? doctor.name_place : FilePlace{doctor.states.front().Place().file, 0};
  for (const Sent& row : sent) {
    if (!row.applies || doctor.State(row.state) != nullptr) continue;
    context.Tell(Check::kDoctorState, doctor, place,
                 std::string("Did not find a valid object state: the game sends the doctor to \"") +
                     row.state + "\" when " + row.when);
  }
}

// Without a doctor nobody tells a child that a treatment hurt.
void CheckNoDoctor(const CheckContext& context) {
  for (const ModelObjectRef& object : context.model.objects) {
    if (object->IsNamed("doctor")) return;
  }
  for (const ModelObjectRef& object : context.model.objects) {
    if (!IsPatient(*object)) continue;
    context.Tell(Check::kDoctorState, *object, object->name_place,
                 "there is a patient \"" + object->name + "\", and no global object \"doctor\"");
  }
}

void CheckSurgery(const CheckContext& context, const ModelObject& screen) {
  const ModelObject* machine = nullptr;
  const char* stage = nullptr;
  const char* patient = nullptr;
  for (const ModelChild& child : screen.children) {
    if (child.object == nullptr) continue;
    if (child.object->IsNamed("surgerymachine")) machine = child.object.get();
    if (!child.object->IsType("patient")) continue;
    if (child.object->IsNamed("kangaroo")) stage = "tumorStage1", patient = "kangaroo";
    if (child.object->IsNamed("scarecrow")) stage = "tonsilsStage1", patient = "scarecrow";
  }
  if (stage == nullptr) return;
  if (machine != nullptr && (!machine->states_known || machine->State(stage) != nullptr)) return;
  context.Tell(Check::kSurgery, screen, screen.name_place,
               std::string("the patient \"") + patient + "\" needs a \"surgerymachine\" with a " +
                   "state \"" + stage + "\" beside it");
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
    if (object->IsNamed("doctor")) CheckDoctor(context, *object);
    CheckSurgery(context, *object);
  }
  if (const ModelObject* doctor = context.model.Global("doctor")) {
    CheckSentStates(context, *doctor);
  } else {
    CheckNoDoctor(context);
  }
}

}  // namespace quendle
