#include "media/MemoryBitmap.h"

namespace quendle {

MemoryBitmap::MemoryBitmap(Gdi& gdi, ContextHandle like, BitmapHandle bitmap)
    : gdi_(gdi), context_(gdi.CreateCompatibleDC(like)), bitmap_(bitmap) {
  gdi_.SelectObject(context_, bitmap_);
}

MemoryBitmap::MemoryBitmap(Gdi& gdi, ContextHandle like, Size size)
    : gdi_(gdi),
      context_(gdi.CreateCompatibleDC(like)),
      bitmap_(gdi.CreateCompatibleBitmap(like, size.width, size.height)) {
  gdi_.SelectObject(context_, bitmap_);
}

MemoryBitmap::MemoryBitmap(Gdi& gdi, Size size)
    : gdi_(gdi),
      context_(gdi.CreateCompatibleDC(0)),
      bitmap_(gdi.CreateCompatibleBitmap(context_, size.width, size.height)) {
  gdi_.SelectObject(context_, bitmap_);
}

MemoryBitmap::~MemoryBitmap() {
  if (bitmap_ != 0) gdi_.DeleteObject(bitmap_);
  if (context_ != 0) gdi_.DeleteDC(context_);
}

}  // namespace quendle
