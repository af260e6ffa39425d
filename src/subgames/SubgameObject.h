#pragma once

#include <string>

#include "object/ForwardingObject.h"

namespace quendle {

// The frame of an arcade game on a screen. Scores go down to the menu; a message that holds "done",
// "won" or "lost" anywhere goes up, whatever else it says.
class SubgameObject : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;

  void HandleMessage(const std::string& message, GameObjectInterface* sender, bool verifying,
                     bool& result) override;
};

}  // namespace quendle
