#pragma once

#include "object/ForwardingObject.h"

namespace quendle {

// The field of the good and the bad cells.
class PlayAreaObject_Bob : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;
};

}  // namespace quendle
