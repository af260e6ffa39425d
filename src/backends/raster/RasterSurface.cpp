#include "backends/raster/RasterSurface.h"

#include <utility>

#include "backends/raster/BlockCopy.h"
#include "backends/raster/RasterGdi.h"
#include "backends/raster/RasterScreen.h"

namespace quendle {
namespace {

constexpr std::size_t kMostWaiting = 4096;  // where copies come and nobody ever looks
constexpr std::uint32_t kKeySource = kBltWaitKeySource & ~kBltWait;

bool Contains(const RasterBitmap& bitmap, const Rect& area) {
  return area.left >= 0 && area.top >= 0 && area.left < area.right && area.top < area.bottom &&
         area.right <= bitmap.Width() && area.bottom <= bitmap.Height();
}

Rect Moved(const Rect& area, Point origin) {
  return {area.left - origin.x, area.top - origin.y, area.right - origin.x, area.bottom - origin.y};
}

}  // namespace

RasterSurface::RasterSurface(RasterGdi& gdi, Faults& faults, BlitWait& wait,
                             std::shared_ptr<RasterBitmap> bitmap, int depth, RasterScreen* screen)
    : gdi_(gdi),
      faults_(faults),
      wait_(wait),
      bitmap_(std::move(bitmap)),
      depth_(depth),
      screen_(screen) {}

RasterSurface::~RasterSurface() {
  if (wait_.surface == this) wait_.surface = nullptr;
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
  const bool keyed = (flags & kKeySource) != 0;
  if (keyed && (!source.key_ || &source == this)) return DrawStatus::kFailed;
  if (screen_ != nullptr || &source == this) {
    EndWait();
    if (!keyed) {
      CopyPlain(to, source, from);
      return DrawStatus::kOk;
    }
  } else if (wait_.surface != this) {
    EndWait();
    wait_.surface = this;
  }
  if (queue_.Size() >= kMostWaiting) DrawWaiting();
  queue_.Add(
      {source.bitmap_, source.bitmap_->Version(), from, to, keyed ? source.key_ : std::nullopt});
  if (screen_ != nullptr) DrawWaiting();
  return DrawStatus::kOk;
}

// Copies the rectangle, or only what has changed in it when the rest stands here already.
void RasterSurface::CopyPlain(const Rect& to, RasterSurface& source, const Rect& from) {
  const auto copy = [&](const Rect& part) {
    CopyBlock(*bitmap_, *source.bitmap_,
              {{to.left + part.left - from.left, to.top + part.top - from.top},
               {part.left, part.top},
               {part.Width(), part.Height()}},
              RasterOp::kCopy, {});
  };
  if (!ShowsAll(source, to, from)) {
    copy(from);
  } else if (shown_.source_version != source.bitmap_->Version()) {
    for (const Rect& change : source.changes_) copy(change);
  }
  shown_ = {source.bitmap_, source.bitmap_->Version(), bitmap_->Version(), to, from};
}

// True when this surface shows the whole source as it is, or as it was before its last changes.
bool RasterSurface::ShowsAll(const RasterSurface& source, const Rect& to, const Rect& from) const {
  const bool same = shown_.source.lock() == source.bitmap_ && shown_.to == to &&
                    shown_.from == from && from == source.bitmap_->Bounds() &&
                    shown_.own_version == bitmap_->Version();
  const std::uint64_t now = source.bitmap_->Version();
  return same &&
         (shown_.source_version == now ||
          (shown_.source_version == source.version_before_ && source.version_after_ == now));
}

void RasterSurface::ForgetDrawn() {
  DrawWaiting();
  queue_.Forget();
}

void RasterSurface::EndWait() {
  if (wait_.surface != nullptr) wait_.surface->DrawWaiting();
}

void RasterSurface::DrawWaiting() {
  if (wait_.surface == this) wait_.surface = nullptr;
  if (queue_.Empty()) return;
  version_before_ = bitmap_->Version();
  changes_ = queue_.Flush(*bitmap_);
  version_after_ = bitmap_->Version();
}

ContextHandle RasterSurface::GetDC() {
  const Faults::Kind fault = faults_.Next("GetDC");
  if (fault == Faults::Kind::kLost) lost_ = true;
  if (fault != Faults::Kind::kNone || lost_ || context_ != 0) return 0;
  EndWait();
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
  if (lost_) {
    EndWait();
    bitmap_->Clear();
  }
  lost_ = false;
  return DrawStatus::kOk;
}

}  // namespace quendle
