// How a message passes through objects. The order of the tests is that of the engine.
#include "toolbelt/verify/MessageRouter.h"

#include <algorithm>
#include <optional>

#include "base/FatalError.h"
#include "base/PathTokens.h"
#include "base/Text.h"
#include "logic/GameVerbs.h"
#include "object/DoctorStates.h"
#include "object/ObjectVerbs.h"
#include "screens/ScreenNames.h"
#include "toolbelt/verify/MessageCall.h"

namespace quendle {
namespace {

constexpr std::size_t kMostInstances = 64;
constexpr std::size_t kDeepestInstance = 12;

// The game itself puts the global object there.
bool GathersIn(const ModelObject& screen, const ModelObject& global) {
  return (screen.IsNamed(kToolsScreenName) && global.Class() == ObjectClass::kTool) ||
         (screen.IsNamed(kCursorsScreenName) && IsPointerName(global.name));
}

std::vector<std::string> NamesOf(const std::vector<const ModelObject*>& objects, bool types) {
  std::vector<std::string> names;
  for (const ModelObject* object : objects) names.push_back(types ? object->type : object->name);
  return names;
}

ModelInstance Below(ModelInstance instance, const ModelObject* child) {
  instance.push_back(child);
  return instance;
}

}  // namespace

std::vector<const ModelObject*> MessageRouter::OrdinaryScreens() const {
  std::vector<const ModelObject*> screens;
  for (const ModelObjectRef& screen : model_.screens) {
    if (screen->IsRoom()) screens.push_back(screen.get());
  }
  return screens;
}

std::vector<const ModelObject*> MessageRouter::ChildrenOf(const ModelObject& object) const {
  std::vector<const ModelObject*> children;
  if (object.Class() == ObjectClass::kMenu) return children;
  for (const ModelChild& child : object.children) {
    if (child.object != nullptr) children.push_back(child.object.get());
  }
  for (const auto& [holder, added] : added_) {
    if (holder == &object) children.push_back(added);
  }
  if (object.role != ModelRole::kScreen) return children;
  for (const ModelObjectRef& global : model_.globals) {
    if (GathersIn(object, *global) && std::ranges::find(children, global.get()) == children.end()) {
      children.push_back(global.get());
    }
  }
  return children;
}

std::vector<ModelInstance> MessageRouter::Instances(const ModelObject& object) const {
  return InstancesBelow(object, 0);
}

std::vector<ModelInstance> MessageRouter::InstancesBelow(const ModelObject& object,
                                                         std::size_t depth) const {
  // Messages may add global objects to each other.
  if (depth > kDeepestInstance) return {{&object}};
  std::vector<const ModelObject*> parents(object.parents.begin(), object.parents.end());
  for (const auto& [holder, added] : added_) {
    if (added == &object) parents.push_back(holder);
  }
  if (object.role == ModelRole::kGlobal) {
    for (const ModelObjectRef& screen : model_.screens) {
      if (GathersIn(*screen, object)) parents.push_back(screen.get());
    }
  }
  std::vector<ModelInstance> instances;
  for (const ModelObject* parent : parents) {
    for (const ModelInstance& above : InstancesBelow(*parent, depth + 1)) {
      if (instances.size() >= kMostInstances) return instances;
      instances.push_back(Below(above, &object));
    }
  }
  if (instances.empty()) instances.push_back({&object});
  return instances;
}

Verdict MessageRouter::SendUp(const ModelInstance& sender, const std::string& message,
                              MessageEffects& effects) {
  Call call(message, effects, 0);
  return ToParent(sender, call);
}

Verdict MessageRouter::ToParent(const ModelInstance& sender, Call& call) {
  if (sender.size() < 2) return ToGame(sender.front(), call);
  return ToObject({sender.begin(), sender.end() - 1}, call);
}

Verdict MessageRouter::ToObject(const ModelInstance& receiver, Call& call) {
  if (call.TooDeep()) return call.Endless();
  const std::optional<ObjectClass> object_class = receiver.back()->Class();
  if (!object_class) return ToPlainObject(receiver, call);
  switch (*object_class) {
    case ObjectClass::kScreen:
      return ToScreen(receiver, call);
    case ObjectClass::kPlayArea:
      return ToArea(receiver, call);
    case ObjectClass::kMenu:
      return ToMenu(receiver, call);
    case ObjectClass::kSubgame:
      return ToFrame(receiver, call);
    case ObjectClass::kPointSystem:
      return ToPoints(receiver, call);
    case ObjectClass::kButton:
    case ObjectClass::kPatient:
    case ObjectClass::kTool:
    case ObjectClass::kBodyView:
      return ToPlainObject(receiver, call);
  }
  return {};
}

Verdict MessageRouter::ToPlainObject(const ModelInstance& receiver, Call& call) {
  const ModelObject& object = *receiver.back();
  if (call.words.empty()) return call.Short();
  switch (ObjectVerbOf(call.Verb())) {
    case ObjectVerb::kShowObj:
      return ShowOrHide(receiver, call, false, false);
    case ObjectVerb::kShowType:
      return ShowOrHide(receiver, call, true, false);
    case ObjectVerb::kHideObj:
      return ShowOrHide(receiver, call, false, true);
    case ObjectVerb::kHideType:
      return ShowOrHide(receiver, call, true, true);
    case ObjectVerb::kRunScript:
      return RunScript(receiver, call);
    case ObjectVerb::kUserAction:
      if (!call.Needs(2)) return call.Short();
      call.effects.actions.insert(FoldCase(call.Word(2)));
      if (call.effects.events != nullptr) call.effects.events->push_back({receiver, call.Word(2)});
      return {};
    case ObjectVerb::kAddGlobalObj:
      return AddGlobal(object, call);
    case ObjectVerb::kToType:
      return Deliver(receiver, call, true);
    case ObjectVerb::kToObj:
      return Deliver(receiver, call, false);
    case ObjectVerb::kRunState:
      return EnterState(object, call, true);
    case ObjectVerb::kChangeState:
      return EnterState(object, call, false);
    case ObjectVerb::kRemoveObj:
      return RemoveObject(receiver, call);
    case ObjectVerb::kClimb:
      return ToParent(receiver, call.Deeper());
  }
  return {};
}

Verdict MessageRouter::RunScript(const ModelInstance& receiver, Call& call) {
  const ModelObject& object = *receiver.back();
  if (!call.Needs(2)) return call.Short();
  if (call.effects.events != nullptr) {
    call.effects.events->push_back({receiver, "nothing", call.Word(2)});
  }
  if (IsNothing(call.Word(2)) || !object.scripts_known || object.Script(call.Word(2)) != nullptr) {
    return {};
  }
  std::vector<std::string> names;
  for (const ModelScript& script : object.scripts) names.push_back(script.name);
  return call.Wrong(Check::kNoSuchScript, "Could Not Find the Script Named \"" + call.Word(2) +
                                              "\" of " + ModelPath(object) +
                                              DidYouMean(call.Word(2), names));
}

Verdict MessageRouter::RemoveObject(const ModelInstance& receiver, Call& call) {
  if (!call.Needs(2)) return call.Short();
  const auto children = ChildrenOf(*receiver.back());
  const bool there = std::ranges::any_of(
      children, [&](const ModelObject* child) { return child->IsNamed(call.Word(2)); });
  return there ? Verdict{} : ToParent(receiver, call.Deeper());
}

Verdict MessageRouter::ShowOrHide(const ModelInstance& receiver, Call& call, bool by_type,
                                  bool climbs) {
  if (!call.Needs(2)) return call.Short();
  const auto children = ChildrenOf(*receiver.back());
  const std::vector<std::string> names = NamesOf(children, by_type);
  for (const std::string& name : names) {
    if (EqualsNoCase(name, call.Word(2))) return {};
  }
  Verdict missing = call.Wrong(by_type ? Check::kNoSuchType : Check::kNoSuchObject,
                               ModelPath(*receiver.back()) + " holds no " +
                                   (by_type ? "object of the type \"" : "object \"") +
                                   call.Word(2) + "\"" + DidYouMean(call.Word(2), names));
  if (!climbs) return missing;
  const Verdict above = ToParent(receiver, call.Deeper());
  return above.fine ? above : missing;
}

Verdict MessageRouter::Deliver(const ModelInstance& receiver, Call& call, bool by_type) {
  if (!call.Needs(2)) return call.Short();
  const std::string& wanted = call.Word(2);
  const auto children = ChildrenOf(*receiver.back());
  Verdict verdict{false, by_type ? Check::kNoSuchType : Check::kNoSuchObject, ""};
  for (const ModelObject* child : children) {
    if (!EqualsNoCase(by_type ? child->type : child->name, wanted)) continue;
    if (!call.Needs(3)) return call.Short();
    Call tail = call.Tail(3);
    const Verdict answer = ToObject(Below(receiver, child), tail);
    if (!by_type || answer.fine) return answer;
    verdict = answer;
  }
  if (!verdict.text.empty()) return verdict;
  if (const ModelObject* doctor = model_.Global(kDoctorName);
      !by_type && doctor != nullptr && EqualsNoCase(wanted, kDoctorName)) {
    if (!call.Needs(3)) return call.Short();
    Call tail = call.Tail(3);
    return ToObject({doctor}, tail);
  }
  if (!receiver.back()->children_known) return {};
  return call.Wrong(verdict.check, ModelPath(*receiver.back()) + " holds no " +
                                       (by_type ? "object of the type \"" : "object \"") + wanted +
                                       "\"" + DidYouMean(wanted, NamesOf(children, by_type)));
}

Verdict MessageRouter::EnterState(const ModelObject& object, Call& call, bool passing) {
  if (!call.Needs(2)) return call.Short();
  const std::string& state = call.Word(2);
  const std::pair entered(&object, FoldCase(state));
  call.effects.states.insert(entered);
  if (passing) call.effects.passing.insert(entered);
  if (!object.states_known || object.State(state) != nullptr) return {};
  return call.Wrong(Check::kMessageState,
                    "Did not find a valid object state: " + ModelPath(object) + " has no state \"" +
                        state + "\"" + DidYouMean(state, object.StateNames()));
}

Verdict MessageRouter::AddGlobal(const ModelObject& object, Call& call) {
  if (!call.Needs(2)) return call.Short();
  if (const ModelObject* global = model_.Global(call.Word(2))) {
    if (global == &object) {
      return call.Wrong(Check::kCircle, "\"" + object.name + "\" can't become its own child");
    }
    call.effects.added.insert({&object, global});
    return {};
  }
  return call.Wrong(Check::kNoSuchGlobal, "there is no global object \"" + call.Word(2) + "\"" +
                                              DidYouMean(call.Word(2), model_.GlobalNames()));
}

}  // namespace quendle
