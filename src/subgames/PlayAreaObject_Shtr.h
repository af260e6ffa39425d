#pragma once

#include "object/ForwardingObject.h"

namespace quendle {

// The field of the shooter.
class PlayAreaObject_Shtr : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;
};

}  // namespace quendle
