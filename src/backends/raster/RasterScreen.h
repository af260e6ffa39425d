#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

#include "backends/raster/RasterBitmap.h"

namespace quendle {

// The 800 by 600 frame that the player sees. Both drawing paths end here; a window or a tool shows
// it from here.
class RasterScreen {
 public:
  RasterScreen();

  // 800 * 600 words 0x00RRGGBB, row by row from the top.
  const std::uint32_t* Frame() const { return bitmap_->Pixels(); }
  // How many times a frame was presented.
  long Presented() const { return presented_; }
  // Called after each presented frame; an empty function ends it.
  void OnPresent(std::function<void()> listener) { listener_ = std::move(listener); }

  // Where the frame's top left stands on the desktop while the game runs in a window and presents
  // in coordinates of the desktop.
  void SetClientOrigin(Point origin) { client_origin_ = origin; }
  Point ClientOrigin() const { return client_origin_; }

  // For the drawing paths: the pixels, and the notice that a frame stands in them.
  const std::shared_ptr<RasterBitmap>& Bitmap() const { return bitmap_; }
  void Present();

 private:
  std::shared_ptr<RasterBitmap> bitmap_;
  std::function<void()> listener_;
  Point client_origin_;
  long presented_ = 0;
};

}  // namespace quendle
