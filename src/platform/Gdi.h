#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "platform/Geometry.h"
#include "platform/Picture.h"

namespace quendle {

// Handles of contexts, bitmaps and regions; 0 is none.
using ContextHandle = std::int32_t;
using BitmapHandle = std::int32_t;
using RegionHandle = std::int32_t;

// Raster operations: S source, D destination.
enum class RasterOp : std::uint32_t {
  kCopy = 0xCC0020,          // S
  kAnd = 0x8800C6,           // S and D
  kPaint = 0xEE0086,         // S or D
  kMergePaint = 0xBB0226,    // (not S) or D
  kNotSourceCopy = 0x330008  // not S
};

// Memory contexts, bitmaps and regions. Operations on a handle of 0 or an unknown handle do nothing
// and give 0, false or the invalid colour; copies are clipped to both bitmaps.
class Gdi {
 public:
  virtual ~Gdi() = default;
  // A bitmap from a file of the content tree (full path), at its own size; 0 when the file is
  // missing or isn't a bitmap that can be read.
  virtual BitmapHandle LoadImageA(const std::string& path) = 0;
  // Why the last LoadImageA gave 0, for messages; empty when it went well.
  virtual std::string WhyNotLoaded() const = 0;
  virtual ContextHandle CreateCompatibleDC(ContextHandle like) = 0;
  virtual BitmapHandle CreateCompatibleBitmap(ContextHandle like, int width, int height) = 0;
  // A monochrome bitmap: its pixels are 0 (black) or 1 (white).
  virtual BitmapHandle CreateMonochromeBitmap(int width, int height) = 0;
  // Selects a bitmap into a context; the bitmap selected before.
  virtual BitmapHandle SelectObject(ContextHandle context, BitmapHandle bitmap) = 0;
  virtual void DeleteObject(BitmapHandle bitmap) = 0;
  virtual void DeleteDC(ContextHandle context) = 0;
  // Width and height of a bitmap; zero for an unknown handle.
  virtual Size GetObjectA(BitmapHandle bitmap) = 0;
  // Copies with a raster operation. Colour to monochrome: a pixel equal to the source context's
  // background colour becomes 1, any other 0. Monochrome to colour: 0 becomes black, 1 the
  // destination's background colour (white unless set).
  virtual bool BitBlt(ContextHandle destination, Point to, Size size, ContextHandle source,
                      Point from, RasterOp operation) = 0;
  // Copies, leaving the destination where the source equals `key`.
  virtual bool TransparentBlt(ContextHandle destination, Point to, Size size, ContextHandle source,
                              Point from, Color key) = 0;
  // The pixel, or kInvalidColor outside the bitmap or without one.
  virtual Color GetPixel(ContextHandle context, Point at) = 0;
  virtual void SetPixel(ContextHandle context, Point at, Color color) = 0;
  // Sets the background colour (white at creation) and gives the one before.
  virtual Color SetBkColor(ContextHandle context, Color color) = 0;

  // A bitmap with the pixels of a picture; 0 for an empty one.
  virtual BitmapHandle CreatePictureBitmap(const Picture& picture) = 0;
  // The pixels of a bitmap; empty for an unknown handle.
  virtual Picture ReadBitmap(BitmapHandle bitmap) = 0;

  // Regions hold a pixel by its top left corner: left and top edges belong to them, right and
  // bottom edges don't.
  virtual RegionHandle CreateRectRgn(const Rect& area) = 0;
  // All points that the closed outline winds around; 0 for fewer than three corners.
  virtual RegionHandle CreatePolygonRgn(std::span<const Point> corners) = 0;
  virtual void DeleteRegion(RegionHandle region) = 0;
  // Gives the pixels of the region one colour.
  virtual bool FillRgn(ContextHandle context, RegionHandle region, Color brush) = 0;
};

}  // namespace quendle
