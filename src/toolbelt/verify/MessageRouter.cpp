// How a message passes through objects. The order of the tests is that of the engine.
#include "toolbelt/verify/MessageRouter.h"

#include <algorithm>

#include "base/FatalError.h"
#include "base/Text.h"
#include "toolbelt/verify/MessageCall.h"

namespace quendle {
namespace {

constexpr std::size_t kMostInstances = 64;
constexpr std::size_t kDeepestInstance = 12;

bool IsBar(const ModelObject& object) { return object.IsNamed("tools"); }
bool IsPointerScreen(const ModelObject& object) { return object.IsNamed("cursors"); }

bool EndsNoCase(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && EqualsNoCase(text.substr(text.size() - end.size()), end);
}

bool HoldsAny(const std::string& text, std::initializer_list<std::string_view> words) {
  return std::ranges::any_of(words, [&](std::string_view w) { return ContainsNoCase(text, w); });
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
    if (!IsBar(*screen) && !IsPointerScreen(*screen)) screens.push_back(screen.get());
  }
  return screens;
}

std::vector<const ModelObject*> MessageRouter::ChildrenOf(const ModelObject& object) const {
  std::vector<const ModelObject*> children;
  if (object.IsType("menu")) return children;
  for (const ModelChild& child : object.children) {
    if (child.object != nullptr) children.push_back(child.object.get());
  }
  for (const auto& [holder, added] : added_) {
    if (holder == &object) children.push_back(added);
  }
  if (object.role != ModelRole::kScreen) return children;
  for (const ModelObjectRef& global : model_.globals) {
    const bool here = (IsBar(object) && global->IsType("tool")) ||
                      (IsPointerScreen(object) && EndsNoCase(global->name, "cursor"));
    if (here && std::ranges::find(children, global.get()) == children.end()) {
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
      const bool here = (IsBar(*screen) && object.IsType("tool")) ||
                        (IsPointerScreen(*screen) && EndsNoCase(object.name, "cursor"));
      if (here) parents.push_back(screen.get());
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
  const ModelObject& object = *receiver.back();
  if (object.IsType("hall") || object.IsType("overlay")) return ToScreen(receiver, call);
  if (object.IsPlayArea()) return ToArea(receiver, call);
  if (object.IsType("menu") && call.Holds("scorevalue")) return {};
  if (object.IsType("subgame")) {
    if (call.Holds("scorevalue")) return {};
    if (HoldsAny(call.message, {"done", "won", "lost"})) return ToParent(receiver, call.Deeper());
  }
  if (object.IsType("pointsystem")) {
    for (const char* verb : {"addclass", "addpoints", "removepoints"}) {
      if (call.Is(verb)) return call.Needs(2) ? Verdict{} : call.Short();
    }
  }
  return ToPlainObject(receiver, call);
}

Verdict MessageRouter::ToScreen(const ModelInstance& receiver, Call& call) {
  const ModelObject& screen = *receiver.back();
  if (call.Holds("addglobalobj")) return ToPlainObject(receiver, call);
  if (EqualsNoCase(call.message, "inctoolcounter") ||
      EqualsNoCase(call.message, "dectoolcounter")) {
    return {};
  }
  const bool climbs =
      (call.Holds("tool") && !HoldsAny(call.message, {"removeobj", "runscript", "toobj"})) ||
      call.Holds("subgame");
  if (climbs) {
    Verdict verdict = ToParent(receiver, call.Deeper());
    if (!verdict.fine && verdict.check == Check::kNoTaker) {
      verdict.text += "; a screen hands all that holds \"tool\" or \"subgame\" up to the game";
    }
    return verdict;
  }
  if (IsBar(screen)) {
    if (HoldsAny(call.message, {"removeallchildren", "removechildren"})) return {};
    if (call.Holds("addchild?")) return call.Needs(2) ? Verdict{} : call.Short();
  }
  return ToPlainObject(receiver, call);
}

Verdict MessageRouter::ToArea(const ModelInstance& receiver, Call& call) {
  if (EqualsNoCase(call.message, "startgame") ||
      HoldsAny(call.message, {"stopgame", "replaygame", "restartgame", "select", "acceptedcell"})) {
    return {};
  }
  if (receiver.back()->IsType("playareasquare") && EqualsNoCase(call.message, "endgame")) return {};
  // Its cells come and go in play.
  if (HoldsAny(call.Verb(), {"toobj", "totype", "showobj", "showtype"})) return {};
  return ToPlainObject(receiver, call);
}

Verdict MessageRouter::ToPlainObject(const ModelInstance& receiver, Call& call) {
  const ModelObject& object = *receiver.back();
  const auto verb_holds = [&](const char* word) { return ContainsNoCase(call.Verb(), word); };
  if (call.words.empty()) return call.Short();
  if (verb_holds("showobj")) return ShowOrHide(receiver, call, false, false);
  if (verb_holds("runscript")) {
    if (!call.Needs(2)) return call.Short();
    if (call.effects.events != nullptr) {
      call.effects.events->push_back({receiver, "nothing", call.Word(2)});
    }
    if (EqualsNoCase(call.Word(2), "nothing") || !object.scripts_known ||
        object.Script(call.Word(2)) != nullptr) {
      return {};
    }
    std::vector<std::string> names;
    for (const ModelScript& script : object.scripts) names.push_back(script.name);
    return call.Wrong(Check::kNoSuchScript, "Could Not Find the Script Named \"" + call.Word(2) +
                                                "\" of " + ModelPath(object) +
                                                DidYouMean(call.Word(2), names));
  }
  if (call.Is("useraction")) {
    if (!call.Needs(2)) return call.Short();
    call.effects.actions.insert(FoldCase(call.Word(2)));
    if (call.effects.events != nullptr) call.effects.events->push_back({receiver, call.Word(2)});
    return {};
  }
  if (verb_holds("hidetype")) return ShowOrHide(receiver, call, true, true);
  if (verb_holds("hideobj")) return ShowOrHide(receiver, call, false, true);
  if (call.Is("addglobalobj")) return AddGlobal(object, call);
  if (verb_holds("showtype")) return ShowOrHide(receiver, call, true, false);
  if (verb_holds("totype")) return Deliver(receiver, call, true);
  if (verb_holds("toobj")) return Deliver(receiver, call, false);
  if (call.Is("toscreen")) return ToParent(receiver, call.Deeper());
  if (call.Is("runstate")) return EnterState(object, call, true);
  if (call.Is("changestate") || call.Is("processstate")) return EnterState(object, call, false);
  if (verb_holds("removeobj") && !verb_holds("cs")) {
    if (!call.Needs(2)) return call.Short();
    const auto children = ChildrenOf(object);
    const bool there = std::ranges::any_of(
        children, [&](const ModelObject* child) { return child->IsNamed(call.Word(2)); });
    if (there) return {};
  }
  return ToParent(receiver, call.Deeper());
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
  if (const ModelObject* doctor = model_.Global("doctor");
      !by_type && doctor != nullptr && EqualsNoCase(wanted, "doctor")) {
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
