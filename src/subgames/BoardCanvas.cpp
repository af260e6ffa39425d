#include "subgames/BoardCanvas.h"

#include "platform/Ports.h"

namespace quendle {

BoardCanvas::BoardCanvas(MediaWorld& world, ContextHandle like, int width, int height)
    : board_(world.ports.gdi, like, Size{width, height}) {
  if (!world.UseDirectX) return;
  surface_ = world.ports.direct_draw.CreateSurface(width, height);
  if (surface_ == nullptr) return;
  const std::int32_t key = world.TransparentColor;
  if (surface_->SetColorKey(kColorKeySourceBlt, key, key) != DrawStatus::kOk) surface_ = nullptr;
}

}  // namespace quendle
