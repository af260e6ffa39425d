#pragma once

#include "object/ForwardingObject.h"

namespace quendle {

// Counts points by name.
class PointSystemObject : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;
};

}  // namespace quendle
