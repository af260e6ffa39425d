#pragma once

#include "media/MediaWorld.h"
#include "media/MemoryBitmap.h"
#include "platform/DirectDraw.h"

namespace quendle {

// A drawing context with a bitmap and, in the DirectDraw path, an off-screen surface with the
// colour key: room for a picture of the whole board. Owns all three.
class BoardCanvas {
 public:
  // `like` is the context that the new one is made compatible with. `world` must outlive it. What
  // the display refuses stays empty.
  BoardCanvas(MediaWorld& world, ContextHandle like, int width, int height);

  // Nothing asks for the two: the board is seen as its tiles.
  ContextHandle Context() const { return board_.Context(); }
  const SurfaceRef& OffScreen() const { return surface_; }

 private:
  MemoryBitmap board_;
  SurfaceRef surface_;
};

}  // namespace quendle
