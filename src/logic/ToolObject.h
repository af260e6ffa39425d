#pragma once

#include "object/ForwardingObject.h"

namespace quendle {

// A tool of the bar; it adds nothing to what its scripts do.
class ToolObject : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;
};

}  // namespace quendle
