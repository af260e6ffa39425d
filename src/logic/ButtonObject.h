#pragma once

#include "object/ForwardingObject.h"

namespace quendle {

// A dialog, a button or a key; it adds nothing to what its scripts do.
class ButtonObject : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;
};

}  // namespace quendle
