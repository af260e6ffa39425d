// The 800 by 600 frame in an output of any size, and the way back from pointer to frame. All
// functions are pure.
#pragma once

#include "platform/Geometry.h"

namespace quendle {

enum class ScaleMode {
  kSharp,  // fits; enlarged in whole steps, then smoothly reduced
  kWhole,  // the largest whole factor that fits
  kSmooth  // fits; interpolated
};

// Where the frame stands in an output of `output` pixels: centred, its aspect kept. A whole factor
// is at least 1 unless the output is smaller than the frame, which then fits.
Rect FrameArea(Size output, ScaleMode mode);

// The whole factor by which a sharp frame is enlarged before it is reduced to `area`.
int SharpFactor(const Rect& area);

// The frame's pixel under the window position `at`, clipped to the frame. `window` is the window's
// size in the units of `at`, `output` its size in pixels.
Point FramePoint(Point at, Size window, Size output, ScaleMode mode);

// True if the window position lies on the frame.
bool IsOverFrame(Point at, Size window, Size output, ScaleMode mode);

}  // namespace quendle
