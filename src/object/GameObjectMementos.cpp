// What play changes of a GameObject, taken and given back.

#include <utility>

#include "base/Watch.h"
#include "object/GameObject.h"
#include "screens/GameObjectMemento.h"

namespace quendle {

void GameObject::CreateMemento(GameObjectMemento& memento) {
  DepthGuard guard(world_.watch.depth, Work::kTreeWalk, ObjectName_, this);
  // In the middle of a passing state the one that it returns to is saved.
  memento.SetCurrentState(StateHistory_.empty() ? CurrentState() : StateHistory_.front());
  memento.Setxpos(xpos_);
  memento.Setypos(ypos_);
  memento.SetVisible(Visible_);
  memento.SetObjectName(ObjectName_);
  for (auto& entry : Children_) {
    auto child = std::make_shared<GameObjectMemento>();
    entry.value->CreateMemento(*child);
    std::string name = child->ObjectName();
    memento.Children().Add(std::move(child), std::move(name));
  }
}

void GameObject::LoadMemento(const GameObjectMemento& memento) {
  DepthGuard guard(world_.watch.depth, Work::kTreeWalk, ObjectName_, this);
  ProcessState(memento.CurrentState());
  ObjectName_ = memento.ObjectName();
  xpos_ = memento.xpos();
  ypos_ = memento.ypos();
  Visible_ = memento.Visible();
  for (const auto& entry : memento.Children()) {
    const GameObjectMemento& record = *entry.value;
    bool found = false;
    for (std::size_t i = 1; i <= Children_.Count(); ++i) {
      ObjectRef child = Children_.Item(i);
      if (!EqualsNoCase(child->ObjectName(), record.ObjectName())) continue;
      found = true;
      child->LoadMemento(record);
    }
    if (found) continue;
    // A shared object that a script put in, such as a tool, comes back to its screen.
    if (ObjectRef shared = world_.FindGlobalObject(record.ObjectName())) {
      shared->LoadMemento(record);
      AttachChild(std::move(shared));
    }
  }
}

}  // namespace quendle
