#include "backends/raster/RasterSurface.h"

#include <utility>

#include "backends/raster/BlockCopy.h"
#include "backends/raster/RasterGdi.h"
#include "backends/raster/RasterScreen.h"

namespace quendle {
namespace {

constexpr std::uint32_t kKeySource = kBltWaitKeySource & ~kBltWait;

bool Contains(const RasterBitmap& bitmap, const Rect& area) {
  return area.left >= 0 && area.top >= 0 && area.left < area.right && area.top < area.bottom &&
         area.right <= bitmap.Width() && area.bottom <= bitmap.Height();
}

Rect Moved(const Rect& area, Point origin) {
  return {area.left - origin.x, area.top - origin.y, area.right - origin.x, area.bottom - origin.y};
}

}  // namespace

RasterSurface::RasterSurface(RasterGdi& gdi, Faults& faults, std::shared_ptr<RasterBitmap> bitmap,
                             int depth, RasterScreen* screen)
    : gdi_(gdi), faults_(faults), bitmap_(std::move(bitmap)), depth_(depth), screen_(screen) {}

RasterSurface::~RasterSurface() {
  if (context_ != 0) gdi_.DeleteDC(context_);
}

DrawStatus RasterSurface::GetPixelFormat(PixelMasks& masks) {
  if (faults_.Fails("GetPixelFormat")) return DrawStatus::kFailed;
  masks = depth_ == 16 ? PixelMasks{0xF800, 0x07E0, 0x001F} : PixelMasks{0xFF0000, 0xFF00, 0xFF};
  return DrawStatus::kOk;
}

DrawStatus RasterSurface::SetColorKey(std::uint32_t flags, std::int32_t low, std::int32_t high) {
  if (faults_.Fails("SetColorKey")) return DrawStatus::kFailed;
  if (flags != kColorKeySourceBlt || low != high) return DrawStatus::kFailed;
  const auto value = static_cast<std::uint32_t>(low);
  key_ = depth_ == 16 ? WordOf565(value) : value & 0xFFFFFF;
  return DrawStatus::kOk;
}

DrawStatus RasterSurface::Blt(const Rect& to, Surface& source, const Rect& from,
                              std::uint32_t flags) {
  auto* origin = dynamic_cast<RasterSurface*>(&source);
  if (origin == nullptr) return DrawStatus::kFailed;
  const Faults::Kind fault = faults_.Next("Blt");
  if (fault == Faults::Kind::kLost) origin->Lose();
  if (lost_ || origin->lost_) return DrawStatus::kSurfaceLost;
  if (fault == Faults::Kind::kFail) return DrawStatus::kFailed;
  const Rect target =
      desktop_coordinates_ && screen_ != nullptr ? Moved(to, screen_->ClientOrigin()) : to;
  const DrawStatus status = Copy(target, *origin, from, flags);
  if (status == DrawStatus::kOk && screen_ != nullptr) screen_->Present();
  return status;
}

DrawStatus RasterSurface::Copy(const Rect& to, RasterSurface& source, const Rect& from,
                               std::uint32_t flags) {
  const bool fits = Contains(*bitmap_, to) && Contains(*source.bitmap_, from) &&
                    to.Width() == from.Width() && to.Height() == from.Height();
  if (!fits || context_ != 0 || source.context_ != 0) return DrawStatus::kFailed;
  if ((flags & kKeySource) == 0) {
    CopyBlock(*bitmap_, *source.bitmap_,
              {{to.left, to.top}, {from.left, from.top}, {to.Width(), to.Height()}},
              RasterOp::kCopy, {});
    return DrawStatus::kOk;
  }
  if (!source.key_ || &source == this) return DrawStatus::kFailed;
  source.bitmap_->Spans(from, *source.key_)
      .Copy(source.bitmap_->At(from.left, from.top), source.bitmap_->Width(),
            bitmap_->WritableAt(to.left, to.top), bitmap_->Width());
  return DrawStatus::kOk;
}

ContextHandle RasterSurface::GetDC() {
  const Faults::Kind fault = faults_.Next("GetDC");
  if (fault == Faults::Kind::kLost) lost_ = true;
  if (fault != Faults::Kind::kNone || lost_ || context_ != 0) return 0;
  context_ = gdi_.CreateContextOn(bitmap_);
  return context_;
}

DrawStatus RasterSurface::ReleaseDC(ContextHandle context) {
  if (context == 0 || context != context_) return DrawStatus::kFailed;
  // A surface that stayed locked after a failed release could never be drawn again.
  gdi_.DeleteDC(std::exchange(context_, 0));
  return faults_.Fails("ReleaseDC") ? DrawStatus::kFailed : DrawStatus::kOk;
}

DrawStatus RasterSurface::Restore() {
  const Faults::Kind fault = faults_.Next("Restore");
  if (fault == Faults::Kind::kLost) lost_ = true;
  if (fault != Faults::Kind::kNone) {
    return lost_ ? DrawStatus::kSurfaceLost : DrawStatus::kFailed;
  }
  if (lost_) bitmap_->Clear();
  lost_ = false;
  return DrawStatus::kOk;
}

}  // namespace quendle
