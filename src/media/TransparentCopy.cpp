#include "media/Graphics.h"
#include "media/MemoryBitmap.h"

namespace quendle {
void TransparentCopy(Gdi& gdi, ContextHandle destination, ContextHandle source, Point to, Size size,
                     Color key) {
  constexpr Point kOrigin{0, 0};
  const MemoryBitmap mask(gdi, destination, gdi.CreateMonochromeBitmap(size.width, size.height));
  const MemoryBitmap work(gdi, destination, size);
  const auto copy = [&](ContextHandle onto, Point at, ContextHandle from, RasterOp operation) {
    gdi.BitBlt(onto, at, size, from, kOrigin, operation);
  };
  // The mask is white where the source has the key colour.
  const Color old_background = gdi.SetBkColor(source, key);
  copy(mask.Context(), kOrigin, source, RasterOp::kCopy);
  gdi.SetBkColor(source, old_background);
  // Whiten the destination where the picture comes.
  copy(work.Context(), kOrigin, mask.Context(), RasterOp::kCopy);
  copy(destination, to, work.Context(), RasterOp::kMergePaint);
  // Whiten the picture where the destination stays, and join both.
  copy(mask.Context(), kOrigin, mask.Context(), RasterOp::kNotSourceCopy);
  copy(work.Context(), kOrigin, source, RasterOp::kCopy);
  copy(work.Context(), kOrigin, mask.Context(), RasterOp::kMergePaint);
  copy(destination, to, work.Context(), RasterOp::kAnd);
}

}  // namespace quendle
