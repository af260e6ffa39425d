#pragma once

#include "object/ForwardingObject.h"

namespace quendle {

// The board of the sliding tiles.
class PlayAreaObject_Square : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;
};

}  // namespace quendle
