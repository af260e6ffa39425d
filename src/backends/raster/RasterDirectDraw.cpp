#include "backends/raster/RasterDirectDraw.h"

#include <utility>

#include "backends/raster/RasterGdi.h"
#include "backends/raster/RasterScreen.h"
#include "backends/raster/RasterSurface.h"

namespace quendle {

DrawStatus RasterDirectDraw::Create() {
  if (faults_.Fails("Create")) return DrawStatus::kFailed;
  created_ = true;
  return DrawStatus::kOk;
}

DrawStatus RasterDirectDraw::SetDisplayMode(int width, int height, int depth) {
  if (faults_.Fails("SetDisplayMode") || !created_) return DrawStatus::kFailed;
  if (width != kFrameWidth || height != kFrameHeight || (depth != 16 && depth != 32)) {
    return DrawStatus::kFailed;
  }
  depth_ = depth;
  mode_is_set_ = true;
  return DrawStatus::kOk;
}

DrawStatus RasterDirectDraw::SetCooperativeLevel(int, std::uint32_t flags) {
  if (faults_.Fails("SetCooperativeLevel") || !created_) return DrawStatus::kFailed;
  if (flags != kCooperativeFullScreen && flags != kCooperativeNormal) return DrawStatus::kFailed;
  cooperative_flags_ = flags;
  return DrawStatus::kOk;
}

SurfaceRef RasterDirectDraw::CreatePrimarySurface() {
  if (faults_.Fails("CreatePrimarySurface") || !created_) return nullptr;
  auto surface =
      std::make_shared<RasterSurface>(gdi_, faults_, wait_, screen_.Bitmap(), depth_, &screen_);
  if (cooperative_flags_ == kCooperativeNormal) surface->UseDesktopCoordinates();
  return Keep(std::move(surface));
}

SurfaceRef RasterDirectDraw::CreateSurface(int width, int height) {
  if (faults_.Fails("CreateSurface") || !created_) return nullptr;
  if (!RasterBitmap::SizeIsLawful(width, height)) return nullptr;
  auto bitmap = std::make_shared<RasterBitmap>(
      width, height, depth_ == 16 ? PixelFormat::kColor565 : PixelFormat::kColor32);
  return Keep(
      std::make_shared<RasterSurface>(gdi_, faults_, wait_, std::move(bitmap), depth_, nullptr));
}

DrawStatus RasterDirectDraw::RestoreDisplayMode() {
  mode_is_set_ = false;
  return created_ ? DrawStatus::kOk : DrawStatus::kFailed;
}

void RasterDirectDraw::Release() {
  created_ = false;
  mode_is_set_ = false;
  depth_ = 32;
  cooperative_flags_ = 0;
}

void RasterDirectDraw::LoseAllSurfaces() {
  for (const auto& weak : surfaces_) {
    if (auto surface = weak.lock()) surface->Lose();
  }
}

SurfaceRef RasterDirectDraw::Keep(std::shared_ptr<RasterSurface> surface) {
  std::erase_if(surfaces_, [](const auto& weak) { return weak.expired(); });
  surfaces_.push_back(surface);
  return surface;
}

}  // namespace quendle
