#pragma once

#include "platform/Gdi.h"

namespace quendle {

// A bitmap in a memory context of its own; both go with it. What the display refuses is missing: a
// bitmap that could not be made leaves a context without pixels, and drawing there does nothing.
class MemoryBitmap {
 public:
  // Takes over `bitmap`, in a context compatible with `like`; 0 for the display's kind.
  MemoryBitmap(Gdi& gdi, ContextHandle like, BitmapHandle bitmap);
  // A black bitmap of `size`, compatible with the context `like`; missing for a `like` of 0.
  MemoryBitmap(Gdi& gdi, ContextHandle like, Size size);
  // The same of the display's kind.
  MemoryBitmap(Gdi& gdi, Size size);
  ~MemoryBitmap();
  MemoryBitmap(const MemoryBitmap&) = delete;
  MemoryBitmap& operator=(const MemoryBitmap&) = delete;

  // 0 for what is missing.
  ContextHandle Context() const { return context_; }
  BitmapHandle Bitmap() const { return bitmap_; }
  Picture Read() const { return gdi_.ReadBitmap(bitmap_); }

 private:
  Gdi& gdi_;
  ContextHandle context_;
  BitmapHandle bitmap_;
};

}  // namespace quendle
