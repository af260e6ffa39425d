#pragma once

#include <string>
#include <string_view>

#include "backends/raster/RasterBitmap.h"

namespace quendle {

// A decoded bitmap file, or the reason why there is none.
struct BitmapFile {
  int width = 0;
  int height = 0;
  PixelBuffer pixels;   // 0x00RRGGBB from the top; nothing when `problem` is set
  std::string problem;  // empty when the file was read
};

// Reads the bytes of a bitmap file: 8, 24 or 32 bits a pixel, not compressed, either row order, at
// most 4096 by 4096, with all pixel data inside the file. Anything else gives a problem; no bytes
// make it read outside of them or ask for more memory than the picture has.
BitmapFile ReadBitmapFile(std::string_view bytes);

}  // namespace quendle
