#pragma once

#include "platform/Gdi.h"

namespace quendle {

// A bitmap in a context of its own; both go with it. A bitmap that could not be made leaves a
// context without pixels.
class MemoryBitmap {
 public:
  // Takes over `bitmap`.
  MemoryBitmap(Gdi& gdi, BitmapHandle bitmap)
      : gdi_(gdi), bitmap_(bitmap), context_(gdi.CreateCompatibleDC(0)) {
    gdi_.SelectObject(context_, bitmap_);
  }
  // A black bitmap of `size`, of the kind of the display.
  MemoryBitmap(Gdi& gdi, Size size) : gdi_(gdi), bitmap_(0), context_(gdi.CreateCompatibleDC(0)) {
    bitmap_ = gdi_.CreateCompatibleBitmap(context_, size.width, size.height);
    gdi_.SelectObject(context_, bitmap_);
  }
  ~MemoryBitmap() {
    gdi_.DeleteObject(bitmap_);
    gdi_.DeleteDC(context_);
  }
  MemoryBitmap(const MemoryBitmap&) = delete;
  MemoryBitmap& operator=(const MemoryBitmap&) = delete;

  ContextHandle Context() const { return context_; }
  Picture Read() const { return gdi_.ReadBitmap(bitmap_); }

 private:
  Gdi& gdi_;
  BitmapHandle bitmap_;
  ContextHandle context_;
};

}  // namespace quendle
