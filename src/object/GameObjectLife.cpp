// How a GameObject lives in its tree: turned on and off, events, children, release.

#include <utility>

#include "base/Numbers.h"
#include "base/Watch.h"
#include "media/DShowObj.h"
#include "media/ObjectPicture.h"
#include "media/SoundState.h"
#include "object/GameObject.h"
#include "object/ObjectFactory.h"
#include "object/ObjectVerbs.h"
#include "script/ActionText.h"
#include "script/ScriptState.h"
#include "script/ScriptVariables.h"

namespace quendle {
namespace {

// True if `wanted` is `tree` or hangs anywhere below it. A tree that is too deep is fatal.
bool Holds(GameObjectInterface& tree, const GameObjectInterface* wanted, WorkDepth& depth,
           int level) {
  if (&tree == wanted) return true;
  if (level > kDeepestNesting) throw FatalError(NestedTooDeep(tree.ObjectName()));
  if (tree.Children().Empty()) return false;
  const DepthGuard guard(depth, Work::kTreeWalk, tree.ObjectName());
  for (const auto& entry : tree.Children()) {
    if (Holds(*entry.value, wanted, depth, level + 1)) return true;
  }
  return false;
}

// Traces the branches that one run of a script takes.
class BranchTracer : public BranchListener {
 public:
  BranchTracer(Watch& watch, std::string object) : watch_(watch), object_(std::move(object)) {}

  void Chosen(const Command* condition, bool matched) override {
    if (watch_.tracer == nullptr) return;
    if (condition == nullptr) {
      watch_.Trace(TraceKind::kBranch, object_, "", matched ? "else" : "");
      return;
    }
    const FilePlace& place = condition->Place();
    const std::string word = condition->Type() == NodeType::kBoolElseIf ? "elseif" : "if";
    watch_.Trace(TraceKind::kBranch, object_, place.file + ":" + std::to_string(place.line),
                 word + condition->Text());
  }

 private:
  Watch& watch_;
  std::string object_;
};

inline bool FitsInt16(int value) { return value == static_cast<std::int16_t>(value); }

// A coordinate relative to an object, as its children get it.
inline std::int16_t Relative(int value) {
  return FitsInt16(value) ? static_cast<std::int16_t>(value)
                          : ToInt16(value, "a coordinate relative to an object");
}

// What has no plain listener must be asked itself, and a point too far away is refused there.
inline bool IsDeaf(const GameObjectInterface& object, int x, int y, const ActionText& elsewhere) {
  const GameObject* listener = object.PlainListener();
  return listener != nullptr && FitsInt16(x) && FitsInt16(y) && listener->IsDeafTo(x, y, elsewhere);
}

}  // namespace

void GameObject::TurnOn() {
  DepthGuard guard(world_.watch.depth, Work::kTreeWalk, ObjectName_, this);
  ObjectOn_ = true;
  if (m_ptrCurrObjState == nullptr) {
    throw FatalError("object \"" + WorkPath() +
                     "\" is turned on without a current state: it has no state \"default\" and "
                     "no directive names another");
  }
  ProcessState(CurrentState());
  for (std::size_t i = 1; i <= Children_.Count(); ++i) {
    ObjectRef child = Children_.Item(i);
    child->SetParent(self_);
    child->TurnOn();
  }
}

void GameObject::TurnOff() {
  DepthGuard guard(world_.watch.depth, Work::kTreeWalk, ObjectName_, this);
  ObjectOn_ = false;
  KillAnimationTimer();
  if (!CurrentSoundName_.empty()) SoundNamed(CurrentSoundName_).StopSound();
  CurrentAnimationName_.clear();
  if (!StateHistory_.empty()) {
    ProcessState(std::string(StateHistory_.front()));
    StateHistory_.clear();
  }
  for (std::size_t i = 1; i <= Children_.Count(); ++i) {
    ObjectRef child = Children_.Item(i);
    child->TurnOff();
  }
}

std::string GameObject::PeekCurrentState(std::int16_t x, std::int16_t y,
                                         const std::string& action) {
  if (!AreWeOnTheObject(x, y)) return "nothing";
  return GetRegionAtPoint(x, y) + action;
}

void GameObject::UpdateGameObject(std::int16_t x, std::int16_t y, const ActionText& action) {
  if (x == -1 && y == -1 && Visible_) {
    RunStateScript(action);
  } else if (Visible_ && AreWeOnTheObject(x, y)) {
    const std::string& region = GetRegionAtPoint(x, y);
    world_.watch.Trace(TraceKind::kHit, ObjectName_, "", region);
    if (region.empty()) {
      RunStateScript(action);
    } else {
      RunStateScript(action.InRegion(region));
    }
  } else {
    RunStateScript(action.Not());
  }
  if (Children_.Empty()) return;
  DepthGuard guard(world_.watch.depth, Work::kTreeWalk, ObjectName_, this);
  // A tracer wants to hear of each object.
  const bool may_skip = action.IsInterned() && world_.watch.tracer == nullptr;
  const ActionText* elsewhere = may_skip ? &action.Not() : nullptr;
  for (std::size_t i = 0; i < Children_.Count(); ++i) {
    const int child_x = x - xpos_;
    const int child_y = y - ypos_;
    if (elsewhere != nullptr && IsDeaf(*Children_.At(i), child_x, child_y, *elsewhere)) continue;
    // A strong copy: what the child does may remove it from here.
    const ObjectRef child = Children_.At(i);
    if (child->Visible()) child->UpdateGameObject(Relative(child_x), Relative(child_y), action);
  }
}

void GameObject::SetCurrentScript(std::shared_ptr<ScriptState> script) {
  current_script_ = std::move(script);
  heard_ = {};
}

std::uint32_t GameObject::FirstActFor(const ActionText& action) {
  if (const Heard* heard = FindHeard(action)) return heard->first_act;
  const std::uint32_t first_act = current_script_ == nullptr
                                      ? Program::kNoAct
                                      : current_script_->Steps().FirstAct(ScriptVariables(action));
  heard_[1] = std::exchange(heard_[0], {&action, first_act});
  return first_act;
}

void GameObject::RunStateScript(const ActionText& action) {
  const bool known = action.IsInterned() && world_.watch.tracer == nullptr;
  const std::uint32_t first_act = known ? FirstActFor(action) : 0;
  if (first_act == Program::kNoAct || current_script_ == nullptr || SelfReference_ == nullptr) {
    return;
  }
  // A strong copy: the script may release the object that it runs on.
  std::shared_ptr<ScriptState> script = current_script_;
  if (known) {
    script->Steps().RunFrom(first_act, ScriptVariables(action), *SelfReference_);
  } else {
    Execute(*script, action);
  }
}

void GameObject::RunScript(const std::string& name) {
  if (EqualsNoCase(name, "nothing") || SelfReference_ == nullptr) return;
  const auto* found = Scripts_.Find(name);
  if (found == nullptr) return;
  std::shared_ptr<ScriptState> script = *found;
  Execute(*script, ActionText(kRunScriptAction));
}

void GameObject::Execute(const ScriptState& script, const ActionText& action) {
  if (world_.watch.tracer == nullptr) {
    script.Execute(ScriptVariables(action), *SelfReference_);
    return;
  }
  world_.watch.Trace(TraceKind::kScript, ObjectName_, script.Name(), action.Text());
  BranchTracer branches(world_.watch, ObjectName_);
  script.Execute(ScriptVariables(action, &branches), *SelfReference_);
}

void GameObject::AddChildObject(ObjectRef child) {
  if (child == nullptr) return;
  AttachChild(child);
  if (ObjectOn_) child->TurnOn();
}

void GameObject::AttachChild(ObjectRef child) {
  if (Holds(*child, SelfReference_, world_.watch.depth, 2)) {
    throw FatalError("\"" + child->ObjectName() + "\" can't become a child of \"" + WorkPath() +
                     "\", which it holds");
  }
  std::string name = child->ObjectName();
  Children_.Add(std::move(child), std::move(name));
}

void GameObject::RemoveChild(const std::string& name) {
  for (std::size_t i = 1; i <= Children_.Count(); ++i) {
    ObjectRef child = Children_.Item(i);
    if (!EqualsNoCase(child->ObjectName(), name)) continue;
    child->TurnOff();
    // Turning off may have run messages: the child is looked up again.
    for (std::size_t k = 1; k <= Children_.Count(); ++k) {
      if (Children_.Item(k) == child) {
        Children_.RemoveAt(k);
        break;
      }
    }
    return;
  }
}

void GameObject::Release(bool forced) {
  if (releasing_ || (!forced && world_.GlobalObjectExists(ObjectName_))) return;
  // Marked first: shared objects may be each other's children.
  releasing_ = true;
  for (std::size_t i = 1; i <= Children_.Count(); ++i) Children_.Item(i)->Release(forced);
  KillAnimationTimer();
  picture_.reset();
  Parent_.reset();
  m_ptrCurrObjState.reset();
  SetCurrentScript(nullptr);
  Animations_.Clear();
  States_.Clear();
  Sounds_.Clear();
  Scripts_.Clear();
  Frames_.Clear();
  FrameRegions_.Clear();
  Children_.Clear();
  SelfReference_ = nullptr;
  self_.reset();
  CurrentFrames_.clear();
  StateHistory_.clear();
  player_.reset();
  // With the sounds go their names: what is turned off later stops none.
  previous_sound_name_ = "nothing";
  CurrentSoundName_.clear();
  releasing_ = false;
}

void GameObject::NotifyParent(const std::string& message, bool verifying, bool& result) {
  std::shared_ptr<MessageTarget> parent = Parent_.lock();
  if (parent == nullptr) return;
  GameObjectInterface* sender = SelfReference_ != nullptr ? SelfReference_ : this;
  parent->HandleMessage(message, sender, verifying, result);
}

void GameObject::NotifyChild(const std::string& message, const std::string& type) {
  for (std::size_t i = 1; i <= Children_.Count(); ++i) {
    ObjectRef child = Children_.Item(i);
    if (EqualsNoCase(child->ObjectType(), type)) child->Send(message, SelfReference_);
  }
}

}  // namespace quendle
