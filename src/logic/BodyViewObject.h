#pragma once

#include "object/ForwardingObject.h"

namespace quendle {

// A view of a body; it adds nothing to what its scripts do.
class BodyViewObject : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;
};

}  // namespace quendle
