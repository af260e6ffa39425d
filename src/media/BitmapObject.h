#pragma once

#include <cstdint>
#include <optional>

#include "media/MemoryBitmap.h"

namespace quendle {

// A small copy of one frame in memory, for pixel reads.
class BitmapObject {
 public:
  // `gdi` must outlive the object. Empty, of size 0 by 0, until GenerateBitmap.
  explicit BitmapObject(Gdi& gdi) : gdi_(gdi) {}

  std::int16_t height() const { return height_; }
  std::int16_t width() const { return width_; }

  // Nothing asks for single channels: always 0.
  std::int16_t GetRed(int, int) const { return 0; }
  std::int16_t GetGreen(int, int) const { return 0; }
  std::int16_t GetBlue(int, int) const { return 0; }

  // The packed colour at a pixel; kInvalidColor outside.
  Color GetPixelRGB(int x, int y) const;

  // Copies a rectangle of a context. Sizes beyond 16 bits are fatal.
  void GenerateBitmap(ContextHandle source, int width, int height, int source_x, int source_y);

  // The memory context; 0 before GenerateBitmap. Nothing asks for it: a copy is read, not drawn.
  ContextHandle GetHandle() const { return copy_ ? copy_->Context() : 0; }

 private:
  Gdi& gdi_;
  std::optional<MemoryBitmap> copy_;
  std::int16_t width_ = 0;
  std::int16_t height_ = 0;
};

}  // namespace quendle
