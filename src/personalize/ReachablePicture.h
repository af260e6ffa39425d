#pragma once

#include "platform/Picture.h"

namespace quendle {

// Points of the outline are 16-bit twips, so they reach this far into a picture, in pixels.
inline constexpr int kFurthestPixel = 2184;
// A picture that must be made smaller anyhow is brought to a size that is handy to work on.
inline constexpr int kHandySide = 1200;

// The picture itself when every pixel of it can be named in 16-bit twips. A larger one is shrunk by
// the smallest whole number that brings both sides down to kHandySide; each pixel is the mean of
// the block it comes from, and the rest at the right and the bottom is left out.
SharedPicture ReachablePicture(SharedPicture picture);

}  // namespace quendle
