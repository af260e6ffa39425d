#include "media/BitmapObject.h"

#include "base/Numbers.h"

namespace quendle {

Color BitmapObject::GetPixelRGB(int x, int y) const { return gdi_.GetPixel(GetHandle(), {x, y}); }

void BitmapObject::GenerateBitmap(ContextHandle source, int width, int height, int source_x,
                                  int source_y) {
  width_ = ToInt16(width, "width of a copied frame");
  height_ = ToInt16(height, "height of a copied frame");
  copy_.emplace(gdi_, source, Size{width, height});
  gdi_.BitBlt(copy_->Context(), {0, 0}, {width, height}, source, {source_x, source_y},
              RasterOp::kCopy);
}

}  // namespace quendle
