#pragma once

#include "object/ForwardingObject.h"

namespace quendle {

// The doctor or a patient. A patient's rules go by type and name, in GameObject.
class PatientObject : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;
};

}  // namespace quendle
