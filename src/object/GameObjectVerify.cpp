// What a GameObject's states, sounds, animations and scripts refer to, checked without playing.

#include "base/ContentFiles.h"
#include "base/Watch.h"
#include "media/MediaWorld.h"
#include "media/SoundState.h"
#include "object/DoctorStates.h"
#include "object/GameObject.h"
#include "object/VerifyRules.h"
#include "script/ScriptState.h"
#include "script/Statement.h"

namespace quendle {
namespace {

bool IsNothingWord(const std::string& name) { return EqualsNoCase(name, "nothing"); }

bool HoldsAny(const std::string& line, std::initializer_list<std::string_view> words) {
  for (std::string_view word : words) {
    if (ContainsNoCase(line, word)) return true;
  }
  return false;
}

}  // namespace

void GameObject::Verify() {
  DepthGuard guard(world_.watch.depth, Work::kTreeWalk, ObjectName_, this);
  VerifyObject();
  for (std::size_t i = 1; i <= Children_.Count(); ++i) {
    ObjectRef child = Children_.Item(i);
    child->Verify();
  }
}

void GameObject::VerifyObject() {
  const bool is_doctor = EqualsNoCase(ObjectName_, kDoctorName);
  for (const auto& entry : States_) {
    VerifySoundState(entry.value->SoundState());
    VerifyAnimationState(entry.value->AnimationState());
    VerifyScript(entry.value->ScriptState());
  }
  if (EqualsNoCase(ObjectType_, "patient") && !is_doctor) {
    for (const auto& entry : States_) VerifyOwwwPair(entry.value->Name());
  }
  if (!is_doctor) return;
  for (const auto& entry : world_.GlobalObjects) {
    if (EqualsNoCase(entry.value->ObjectType(), "tool")) {
      VerifyInfoState(StripToolWords(entry.value->ObjectName()));
    }
  }
}

bool GameObject::VerifySoundState(const std::string& name) {
  if (IsNothingWord(name)) return true;
  std::shared_ptr<SoundState> sound = QuerySoundState(name);
  return sound != nullptr && world_.media.content.FileExistsAt(sound->Sound());
}

bool GameObject::VerifyAnimationState(const std::string& name) {
  if (IsNothingWord(name)) return true;
  std::shared_ptr<AnimationState> animation = QueryAnimationState(name);
  if (animation == nullptr) return false;
  std::vector<std::string> frames;
  animation->EnumerateAllFrames(frames);
  bool valid = true;
  for (const std::string& frame : frames) valid = VerifyFrame(frame) && valid;
  return valid;
}

bool GameObject::VerifyFrame(const std::string& name) {
  std::shared_ptr<AnimationFrame> frame = QueryFrameState(name);
  return frame != nullptr && FrameFitsScreen(*frame);
}

bool GameObject::VerifyState(const std::string& name) {
  std::shared_ptr<ObjState> state = QueryObjState(name);
  if (state == nullptr) return false;
  const bool sound = VerifySoundState(state->SoundState());
  const bool animation = VerifyAnimationState(state->AnimationState());
  if (EqualsNoCase(ObjectType_, "patient") && !EqualsNoCase(ObjectName_, kDoctorName)) {
    VerifyOwwwPair(name);  // made, and without a say in the result
  }
  return sound && animation;
}

void GameObject::VerifyAllAnimationStates() {
  for (const auto& entry : Animations_) VerifyAnimationState(entry.key);
}

void GameObject::VerifyAllSoundStates() {
  for (const auto& entry : Sounds_) VerifySoundState(entry.key);
}

bool GameObject::VerifyScript(const std::string& name) {
  if (IsNothingWord(name)) return true;
  const auto* script = Scripts_.Find(name);
  if (script == nullptr) return false;
  std::vector<std::string> lines;
  (*script)->PrintScript(lines);
  bool valid = true;
  for (const std::string& line : lines) {
    if (HoldsAny(line, {"begin", "end"})) continue;
    bool line_valid = true;
    if (ContainsNoCase(line, "if ")) {
      line_valid = HoldsAny(line, {"mouseclick", "mouseover", "incrementstate", "action"});
    } else {
      Interpret(Statement(line), true, line_valid);
    }
    valid = valid && line_valid;
  }
  return valid;
}

bool GameObject::VerifyOwwwPair(const std::string& name) {
  if (!NeedsOwwwTwin(name)) return true;
  const std::string twin = name + "-owww";
  return StateExists(twin) && StateAnimationLoops(twin) && StateHasScript(twin);
}

bool GameObject::StateExists(const std::string& name) { return QueryObjState(name) != nullptr; }

bool GameObject::StateHasScript(const std::string& name) {
  std::shared_ptr<ObjState> state = QueryObjState(name);
  return state != nullptr && IsNothingWord(state->ScriptState());
}

bool GameObject::StateAnimationLoops(const std::string& name) {
  std::shared_ptr<ObjState> state = QueryObjState(name);
  if (state == nullptr) return false;
  std::shared_ptr<AnimationState> animation = QueryAnimationState(state->AnimationState());
  return animation == nullptr || !animation->GetLoopState();
}

bool GameObject::VerifyInfoState(const std::string& name) { return VerifyState(name + "info"); }

}  // namespace quendle
