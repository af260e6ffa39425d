#pragma once

#include "platform/Geometry.h"

namespace quendle {

// One rectangle of a picture and where it goes: what is left of an animation frame once its
// placement is resolved.
struct PlacedFrame {
  int left = 0;  // on the 800 by 600 frame
  int top = 0;
  int width = 0;
  int height = 0;
  int source_x = 0;  // top left of the rectangle in the picture
  int source_y = 0;
};

// The coordinate at which a frame stands, for an object at `position` and a placement code: 0 or
// more is the place itself, -1 keeps the position, below -1 keeps an offset of that magnitude from
// it. The result stays within +-2^30, so that adding a 16-bit parent position can't overflow.
int ResolveFramePosition(int position, int placement);

// The two rectangles of a surface copy.
struct ClippedFrame {
  Rect to;
  Rect from;
};

// Cuts a frame at the edges of the 800 by 600 frame. A frame wholly outside gives rectangles that
// are turned over, which a surface refuses.
ClippedFrame ClipFrame(const PlacedFrame& frame);

}  // namespace quendle
