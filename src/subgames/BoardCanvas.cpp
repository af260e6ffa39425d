#include "subgames/BoardCanvas.h"

#include "platform/Ports.h"

namespace quendle {

BoardCanvas::BoardCanvas(MediaWorld& world, ContextHandle like, int width, int height)
    : world_(world) {
  Gdi& gdi = world_.ports.gdi;
  context_ = gdi.CreateCompatibleDC(like);
  bitmap_ = gdi.CreateCompatibleBitmap(like, width, height);
  gdi.SelectObject(context_, bitmap_);
  if (!world_.UseDirectX) return;
  surface_ = world_.ports.direct_draw.CreateSurface(width, height);
  if (surface_ == nullptr) return;
  const std::int32_t key = world_.TransparentColor;
  if (surface_->SetColorKey(kColorKeySourceBlt, key, key) != DrawStatus::kOk) surface_ = nullptr;
}

BoardCanvas::~BoardCanvas() {
  Gdi& gdi = world_.ports.gdi;
  gdi.DeleteDC(context_);
  gdi.DeleteObject(bitmap_);
}

}  // namespace quendle
