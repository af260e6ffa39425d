// The keyboard's way through a form.
#pragma once

#include "platform/Form.h"

namespace quendle {

// Moves the focus to the next (`step` 1) or previous (-1) stop in the order of the controls,
// round the ends. A picture pair is one stop, and so is a radio group: its set button.
void MoveFocus(Form& form, int step);

// The neighbour of a radio button in its group, round the ends.
Control& NeighbourInGroup(Form& form, const Control& radio, int step);

// Puts the focus on a control of the form.
void FocusOn(Form& form, const Control& control);

// The control that has the focus; nothing without one.
Control* Focused(Form& form);

// After pictures were shown and hidden: the focus of a pair goes to the one that is seen.
void FollowVisiblePicture(Form& form);

}  // namespace quendle
