// States, sounds and the history of states of a GameObject.

#include <utility>

#include "base/Settings.h"
#include "base/Watch.h"
#include "media/MediaWorld.h"
#include "media/SoundState.h"
#include "object/DoctorStates.h"
#include "object/GameObject.h"
#include "object/StatementTokens.h"
#include "object/SurgeryReset.h"
#include "script/ScriptState.h"

namespace quendle {
namespace {

constexpr std::string_view kNothing = "nothing";
constexpr std::string_view kUnchanged = "unchanged";

template <class T>
std::shared_ptr<T> FindOrNull(const KeyedList<std::shared_ptr<T>>& list, const std::string& name) {
  const std::shared_ptr<T>* found = list.Find(name);
  return found == nullptr ? nullptr : *found;
}

}  // namespace

std::string GameObject::ProcessState(const std::string& name) {
  std::shared_ptr<ObjState> state = QueryObjState(name);
  if (state == nullptr) return {};
  world_.watch.Trace(TraceKind::kState, ObjectName_, CurrentState(), state->Name());
  // A state that leaves the sound unchanged hands on the name that it inherited.
  if (m_ptrCurrObjState != nullptr && !EqualsNoCase(m_ptrCurrObjState->SoundState(), kUnchanged)) {
    previous_sound_name_ = m_ptrCurrObjState->SoundState();
  }
  m_ptrCurrObjState = state;
  const std::string& script = state->ScriptState();
  SetCurrentScript(EqualsNoCase(script, kNothing) ? nullptr : FindOrNull(Scripts_, script));
  if (ObjectOn_) {
    RunSoundOfState(state->SoundState());
    RunAnimation(state->AnimationState());
  } else if (EqualsNoCase(ObjectName_, kDoctorName) &&
             !ContainsNoCase(state->SoundState(), "subgame")) {
    // The doctor speaks even while its screen is off.
    RunSoundOfState(state->SoundState());
  }
  return {};
}

void GameObject::RunSoundOfState(const std::string& name) {
  if (EqualsNoCase(name, kUnchanged)) return;
  if (!EqualsNoCase(previous_sound_name_, kNothing)) SoundNamed(previous_sound_name_).StopSound();
  StartSound(name);
}

void GameObject::RunSoundStatement(const std::string& name) {
  if (EqualsNoCase(name, kUnchanged)) return;
  if (!CurrentSoundName_.empty() && !EqualsNoCase(CurrentSoundName_, kNothing)) {
    SoundNamed(CurrentSoundName_).StopSound();
  }
  StartSound(name);
}

void GameObject::StartSound(const std::string& name) {
  if (EqualsNoCase(name, kNothing)) return;
  world_.watch.Trace(TraceKind::kSound, ObjectName_, "", name);
  SoundNamed(name).PlaySound();
  CurrentSoundName_ = name;
}

SoundState& GameObject::SoundNamed(const std::string& name) {
  if (std::shared_ptr<SoundState>* found = Sounds_.Find(name)) return **found;
  throw FatalError("object \"" + WorkPath() + "\" has no sound \"" + name + "\"" +
                       DidYouMean(name, Sounds_.Keys()),
                   StatePlace());
}

const FilePlace& GameObject::StatePlace() const {
  static const FilePlace kNowhere;
  return m_ptrCurrObjState != nullptr ? m_ptrCurrObjState->Place() : kNowhere;
}

std::shared_ptr<ObjState> GameObject::QueryObjState(const std::string& name) {
  return FindOrNull(States_, name);
}
std::shared_ptr<SoundState> GameObject::QuerySoundState(const std::string& name) {
  return FindOrNull(Sounds_, name);
}
std::shared_ptr<AnimationState> GameObject::QueryAnimationState(const std::string& name) {
  return FindOrNull(Animations_, name);
}
std::shared_ptr<AnimationFrame> GameObject::QueryFrameState(const std::string& name) {
  return FindOrNull(Frames_, name);
}

void GameObject::RunState(const std::string& name) {
  const std::string current = CurrentState();
  if (EqualsNoCase(name, current) && !EqualsNoCase(ObjectName_, kDoctorName)) return;
  if (StateHistory_.empty()) StateHistory_.push_back(current);
  if (SelfReference_ != nullptr) SelfReference_->ProcessState(name);
}

void GameObject::PopStateHistory() {
  if (StateHistory_.empty()) return;
  const std::string back = std::move(StateHistory_.back());
  StateHistory_.pop_back();
  if (EqualsNoCase(ObjectType_, "patient") && ContainsNoCase(CurrentState(), "-owww") &&
      HurtPatientStartsOver()) {
    return;
  }
  ProcessState(back);
}

bool GameObject::HurtPatientStartsOver() {
  bool unused = false;
  if (EqualsNoCase(world_.media.settings.DifficultyLevel, "Easy")) {
    NotifyParent(MessageTo(DoctorState::kTryAgain), false, unused);
    return false;
  }
  ProcessState("default");
  NotifyParent(MessageTo(DoctorState::kStartOver), false, unused);
  ResetSurgeryMachine();
  return true;
}

void GameObject::ResetSurgeryMachine() {
  const SurgeryReset& reset = SurgeryResetOf(world_.media.settings.GameEdition);
  if (!EqualsNoCase(ObjectName_, reset.patient)) return;
  const std::string machine(kSurgeryMachineName);
  bool unused = false;
  NotifyParent("hideobj_" + machine, false, unused);
  NotifyParent("toobj_" + machine + "_changestate_" + std::string(reset.machine_state), false,
               unused);
}

std::string GameObject::GetRootState() { return RootStateOf(CurrentState()); }

}  // namespace quendle
