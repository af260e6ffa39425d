#pragma once

#include <cstdint>

#include "platform/Gdi.h"

namespace quendle {

// A small copy of one frame in memory, for pixel reads. Owns its bitmap and context.
class BitmapObject {
 public:
  // `gdi` must outlive the object. Empty, of size 0 by 0, until GenerateBitmap.
  explicit BitmapObject(Gdi& gdi) : gdi_(gdi) {}
  ~BitmapObject() { Release(); }
  BitmapObject(const BitmapObject&) = delete;
  BitmapObject& operator=(const BitmapObject&) = delete;

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
  ContextHandle GetHandle() const { return context_; }

 private:
  void Release();

  Gdi& gdi_;
  BitmapHandle bitmap_ = 0;
  ContextHandle context_ = 0;
  std::int16_t width_ = 0;
  std::int16_t height_ = 0;
};

}  // namespace quendle
