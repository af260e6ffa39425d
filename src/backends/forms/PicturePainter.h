#pragma once

#include "backends/forms/Canvas.h"
#include "platform/Picture.h"

namespace quendle {

// Draws a picture stretched to `area` in form units: shrunk ones are smoothed, grown ones keep
// their square pixels.
void DrawPicture(Canvas& canvas, const Picture& picture, const Rect& area);

// The largest size of the picture's shape within `room`; small pictures aren't grown.
Size FittingSize(Size picture, Size room);

// The picture in another size, neither side 0.
Picture Stretched(const Picture& picture, Size size);

}  // namespace quendle
