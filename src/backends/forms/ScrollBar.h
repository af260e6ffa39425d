// Where the parts of a scroll bar stand, for those who draw it and those who move it.
#pragma once

#include "backends/forms/Canvas.h"
#include "platform/Form.h"

namespace quendle {

// True for a bar that lies.
bool IsLying(const Control& bar);
// Radius and middle of its round knob, in form units.
double KnobRadius(const Control& bar);
Vec KnobCentre(const Control& bar);
// The value that puts the knob under a position of the form.
int ScrollValueAt(const Control& bar, Point at);

}  // namespace quendle
