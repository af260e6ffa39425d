#include "backends/raster/RasterScreen.h"

namespace quendle {

RasterScreen::RasterScreen()
    : bitmap_(std::make_shared<RasterBitmap>(kFrameWidth, kFrameHeight, PixelFormat::kColor32)) {}

void RasterScreen::Present() {
  ++presented_;
  if (listener_) listener_();
}

}  // namespace quendle
