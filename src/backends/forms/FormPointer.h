// Where the pointer stands on a form.
#pragma once

#include "platform/Form.h"

namespace quendle {

// Position in `form.controls` of the topmost visible, enabled control that answers to the pointer
// at `at`, or -1. Lines, frames and plain labels count as the form itself.
int ControlAt(const Form& form, Point at);

// True where the form can be moved by: its title band, where no control answers.
bool IsMoveHandle(const Form& form, Point at);

}  // namespace quendle
