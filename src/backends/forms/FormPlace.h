#pragma once

#include "platform/Geometry.h"

namespace quendle {

// Where a form stands in a window.
struct FormPlace {
  double left = 0;
  double top = 0;
  double scale = 1;  // window units a form pixel

  // The form's pixel under a position in the window.
  Point ToForm(int x, int y) const;
};

// Pixels a form pixel takes in a window of the form's own. Whole factors, so that lines stay sharp;
// less than 1 only for a form larger than the display.
double ScaleOnDisplay(Size form, Size display);

// The same for a form over the frame, which stands at `frame` in an output of `output` pixels: a
// form grows with the frame and never leaves the window.
double ScaleOverFrame(Size form, Size output, const Rect& frame);

// Where such a form stands, centred, in a window of `window` units.
FormPlace PlaceOverFrame(Size form, Size output, const Rect& frame, Size window);

}  // namespace quendle
