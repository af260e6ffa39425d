#include "media/BitmapObject.h"

#include "base/Numbers.h"

namespace quendle {

Color BitmapObject::GetPixelRGB(int x, int y) const { return gdi_.GetPixel(context_, {x, y}); }

void BitmapObject::GenerateBitmap(ContextHandle source, int width, int height, int source_x,
                                  int source_y) {
  Release();
  width_ = ToInt16(width, "width of a copied frame");
  height_ = ToInt16(height, "height of a copied frame");
  context_ = gdi_.CreateCompatibleDC(source);
  bitmap_ = gdi_.CreateCompatibleBitmap(source, width, height);
  gdi_.SelectObject(context_, bitmap_);
  gdi_.BitBlt(context_, {0, 0}, {width, height}, source, {source_x, source_y}, RasterOp::kCopy);
}

void BitmapObject::Release() {
  if (bitmap_ != 0) gdi_.DeleteObject(bitmap_);
  if (context_ != 0) gdi_.DeleteDC(context_);
  bitmap_ = 0;
  context_ = 0;
}

}  // namespace quendle
