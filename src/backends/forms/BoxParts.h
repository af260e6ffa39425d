// What our own boxes are made of.
#pragma once

#include <string>

#include "platform/Form.h"

namespace quendle {

// Adds a control to the record.
Control& AddControl(Form& form, ControlKind kind, std::string name, const Rect& area);

// Adds the lines of the bevel along the edges; the size of the form is set.
void AddBevel(Form& form);

}  // namespace quendle
