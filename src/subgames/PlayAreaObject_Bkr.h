#pragma once

#include "object/ForwardingObject.h"

namespace quendle {

// The field of the ball and the bricks.
class PlayAreaObject_Bkr : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;
};

}  // namespace quendle
