// The routing of messages through a GameObject: ObjectVerbOf decides, here it is done.

#include "base/Watch.h"
#include "base/Words.h"
#include "object/DoctorStates.h"
#include "object/GameObject.h"
#include "object/MessageWork.h"
#include "object/ObjectVerbs.h"
#include "script/ScriptWorld.h"

namespace quendle {
namespace {

constexpr const char* kTypeMissing = " Warning: Did not Find the type requested by the message ";
constexpr const char* kObjectMissing =
    " Warning: Did not Find the object requested by the message ";
constexpr int kWarningLevel = 10;

}  // namespace

struct GameObject::MessageCall {
  const std::string& message;
  const Words& words;
  GameObjectInterface* self;  // what children see as the sender
  bool verifying;
  bool& result;
};

void GameObject::HandleMessage(const std::string& message, GameObjectInterface* sender,
                               bool verifying, bool& result) {
  const MessageWork work(*this, message, sender, verifying);
  const Words words(message, '_');
  GameObjectInterface* self = SelfReference_ != nullptr ? SelfReference_ : this;
  MessageCall call{message, words, self, verifying, result};
  switch (ObjectVerbOf(words[1])) {
    case ObjectVerb::kShowObj:
      return ShowObj(call);
    case ObjectVerb::kRunScript:
      return RunScriptVerb(call);
    case ObjectVerb::kUserAction:
      return UserAction(call);
    case ObjectVerb::kHideType:
      return HideType(call);
    case ObjectVerb::kHideObj:
      return HideObj(call);
    case ObjectVerb::kAddGlobalObj:
      return AddGlobalObj(call);
    case ObjectVerb::kShowType:
      return ShowType(call);
    case ObjectVerb::kToType:
      return ToType(call);
    case ObjectVerb::kToObj:
      return ToObj(call);
    case ObjectVerb::kRunState:
      return RunStateVerb(call);
    case ObjectVerb::kChangeState:
      return ChangeState(call);
    case ObjectVerb::kRemoveObj:
      return RemoveObj(call);
    case ObjectVerb::kClimb:
      return PassUp(call);
  }
}

bool GameObject::SetVisibleWhere(Property property, const std::string& value, bool visible,
                                 bool verifying) {
  bool found = false;
  for (auto& entry : Children_) {
    if (!EqualsNoCase((*entry.value.*property)(), value)) continue;
    found = true;
    if (!verifying) entry.value->SetVisible(visible);
  }
  return found;
}

bool GameObject::DeliverWhere(Property property, MessageCall& call) {
  const std::string& value = call.words[2];
  bool found = false;
  std::string tail;
  for (std::size_t i = 1; i <= Children_.Count(); ++i) {
    ObjectRef child = Children_.Item(i);
    if (!EqualsNoCase((*child.*property)(), value)) continue;
    if (!found) tail = call.words.Tail(3);
    found = true;
    child->HandleMessage(tail, call.self, call.verifying, call.result);
  }
  return found;
}

void GameObject::LogWarning(const char* warning, const std::string& message) {
  world_.LogGeneral(ObjectName_ + warning + message, kWarningLevel);
}

void GameObject::ShowObj(MessageCall& call) {
  const bool found =
      SetVisibleWhere(&GameObjectInterface::ObjectName, call.words[2], true, call.verifying);
  if (call.verifying && !found) call.result = false;
}

void GameObject::RunScriptVerb(MessageCall& call) {
  if (call.verifying) {
    call.result = VerifyScript(call.words[2]);
  } else {
    RunScript(call.words[2]);
  }
}

void GameObject::UserAction(MessageCall& call) {
  if (call.verifying) {
    call.result = call.words.Count() >= 2;
  } else {
    UpdateGameObject(-1, -1, world_.scripts.actions.Get(call.words[2]));
  }
}

void GameObject::HideType(MessageCall& call) {
  const bool found =
      SetVisibleWhere(&GameObjectInterface::ObjectType, call.words[2], false, call.verifying);
  PassUp(call);
  if (call.verifying && !found && !call.result) LogWarning(kTypeMissing, call.message);
}

void GameObject::HideObj(MessageCall& call) {
  const bool found =
      SetVisibleWhere(&GameObjectInterface::ObjectName, call.words[2], false, call.verifying);
  if (call.verifying && !found) {
    call.result = false;
    LogWarning(kObjectMissing, call.message);
  }
  PassUp(call);
}

void GameObject::AddGlobalObj(MessageCall& call) {
  ObjectRef object = world_.FindGlobalObject(call.words[2]);
  if (call.verifying) {
    call.result = object != nullptr;
  } else if (object != nullptr && SelfReference_ != nullptr) {
    SelfReference_->AddChildObject(std::move(object));
  }
}

void GameObject::ShowType(MessageCall& call) {
  const bool found =
      SetVisibleWhere(&GameObjectInterface::ObjectType, call.words[2], true, call.verifying);
  if (call.verifying && !found) {
    call.result = false;
    // The text of a missing object, though the search was by type.
    LogWarning(kObjectMissing, call.message);
  }
}

void GameObject::ToType(MessageCall& call) {
  const bool found = DeliverWhere(&GameObjectInterface::ObjectType, call);
  if (call.verifying && !found) LogWarning(kTypeMissing, call.message);
}

void GameObject::ToObj(MessageCall& call) {
  if (DeliverWhere(&GameObjectInterface::ObjectName, call)) return;
  if (!EqualsNoCase(call.words[2], kDoctorName)) return;
  // The doctor hears from any object that has no child of that name.
  if (ObjectRef doctor = world_.FindGlobalObject(kDoctorName)) {
    doctor->HandleMessage(call.words.Tail(3), call.self, call.verifying, call.result);
  }
}

void GameObject::RunStateVerb(MessageCall& call) {
  if (call.verifying) {
    call.result = VerifyState(call.words[2]);
  } else {
    RunState(call.words[2]);
  }
}

void GameObject::ChangeState(MessageCall& call) {
  if (call.verifying) {
    call.result = VerifyState(call.words[2]);
  } else if (SelfReference_ != nullptr) {
    SelfReference_->ProcessState(call.words[2]);
  }
}

void GameObject::RemoveObj(MessageCall& call) {
  // Verifying removes as well: this verb has no guard.
  const std::string name = call.words[2];
  bool found = false;
  for (std::size_t i = 1; i <= Children_.Count();) {
    if (EqualsNoCase(Children_.Item(i)->ObjectName(), name)) {
      found = true;
      RemoveChild(name);
    } else {
      ++i;
    }
  }
  if (!found) {
    PassUp(call);
  } else if (call.verifying) {
    call.result = true;
  }
}

void GameObject::PassUp(MessageCall& call) {
  NotifyParent(call.message, call.verifying, call.result);
}

}  // namespace quendle
