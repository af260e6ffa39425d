#pragma once

#include "backends/raster/RasterBitmap.h"
#include "platform/Gdi.h"

namespace quendle {

// A copy between two bitmaps whose sizes are equal by nature.
struct Block {
  Point to;
  Point from;
  Size size;
};

// What of a block lies inside both bitmaps; an empty size when nothing does. Any numbers are safe.
Block ClipBlock(const Block& block, Size target, Size source);

// Colours that stand for 1 when a block passes between colour and monochrome.
struct BlockColors {
  Color source_background = 0xFFFFFF;
  Color target_background = 0xFFFFFF;
};

// Combines a block that lies inside both bitmaps, which may be one, with a raster operation.
void CopyBlock(RasterBitmap& target, RasterBitmap& source, const Block& block, RasterOp operation,
               const BlockColors& colors);

// Copies a block, clipped to both bitmaps, but for pixels that are the word `key`. Two bitmaps of
// one format.
void CopyBlockKeyed(RasterBitmap& target, RasterBitmap& source, const Block& block,
                    std::uint32_t key);

}  // namespace quendle
