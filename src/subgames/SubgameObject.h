#pragma once

#include "object/ForwardingObject.h"

namespace quendle {

// The frame of an arcade game on a screen of its own.
class SubgameObject : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;
};

}  // namespace quendle
