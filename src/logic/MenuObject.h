#pragma once

#include <string>

#include "object/ForwardingObject.h"

namespace quendle {

// A menu has only its own pictures: children that its list file makes are built and dropped.
class MenuObject : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;

  void AddChildObject(ObjectRef child) override;
  // A message that holds "scorevalue" goes to the children of type "scoring".
  void HandleMessage(const std::string& message, GameObjectInterface* sender, bool verifying,
                     bool& result) override;
};

}  // namespace quendle
