#include "media/ObjectPicture.h"

#include <tuple>

#include "base/ContentFiles.h"
#include "base/EventSink.h"
#include "base/FatalError.h"
#include "base/PathTokens.h"
#include "base/SF_Strings.h"
#include "base/Text.h"
#include "media/PictureFault.h"
#include "platform/Ports.h"

namespace quendle {
namespace {

constexpr const char* kGlobalPicture = "globalpicture_";
// The display may recover between two tries; a file doesn't, so there is an end.
constexpr int kTries = 4;
constexpr int kLogLevel = 1;

}  // namespace

void ObjectPicture::LoadPicture(const std::string& name) {
  Release();
  name_ = name;
  if (!HasName()) return;
  if (!world_.UseDirectX) {
    LoadContextPicture();
    return;
  }
  if (ContainsNoCase(name_, kGlobalPicture)) {
    surface_ = world_.FindGlobalPicture(SF_remove(name_, kGlobalPicture));
    return;
  }
  if (auto shown = world_.shown_pictures.find(FoldCase(name_));
      shown != world_.shown_pictures.end()) {
    surface_ = shown->second.lock();
    owns_surface_ = surface_ != nullptr;  // with the others: whoever finds it lost loads it again
    if (owns_surface_) return;
  }
  LoadSurfacePicture(false);
  const DrawStatus status =
      surface_->SetColorKey(kColorKeySourceBlt, world_.TransparentColor, world_.TransparentColor);
  if (status != DrawStatus::kOk) {
    throw FatalError("the display refuses the colour key of the picture",
                     {world_.content.DisplayName(FullPath()), 0});
  }
  world_.shown_pictures[FoldCase(name_)] = surface_;
}

void ObjectPicture::LoadSurfacePicture(bool restore) {
  if (!HasName()) return;
  for (int i = 0; i < kTries; ++i) {
    const bool loaded = TryLoadSurface(restore && i == 0);
    loaded_.reset();
    if (loaded) return;
    // What replaces a surface that can't be restored has no key: nobody else gets it.
    world_.shown_pictures.erase(FoldCase(name_));
  }
  FailOnPicture(world_, FullPath());
}

void ObjectPicture::Release() {
  loaded_.reset();
  surface_.reset();
  owns_surface_ = false;
}

bool ObjectPicture::HasName() const { return !name_.empty() && !IsNothing(name_); }

bool ObjectPicture::Exists() const {
  return world_.UseDirectX ? surface_ != nullptr : PictureHandle() != 0;
}

Color ObjectPicture::PixelAt(int x, int y) const {
  return world_.ports.gdi.GetPixel(PictureHandle(), {x, y});
}

std::unique_ptr<BitmapObject> ObjectPicture::CopyRectangle(int x, int y, int width,
                                                           int height) const {
  auto copy = std::make_unique<BitmapObject>(world_.ports.gdi);
  copy->GenerateBitmap(PictureHandle(), width, height, x, y);
  return copy;
}

bool ObjectPicture::DrawFrameWindow(ContextHandle destination, const PlacedFrame& frame) const {
  return world_.ports.gdi.TransparentBlt(destination, {frame.left, frame.top},
                                         {frame.width, frame.height}, PictureHandle(),
                                         {frame.source_x, frame.source_y}, world_.TransparentColor);
}

DrawStatus ObjectPicture::DrawFrameDirectX(Surface& destination, const PlacedFrame& frame) {
  if (surface_ == nullptr) return DrawStatus::kFailed;
  const ClippedFrame clipped = ClipFrame(frame);
  const DrawStatus status = destination.Blt(clipped.to, *surface_, clipped.from, kBltWaitKeySource);
  if (status == DrawStatus::kSurfaceLost) RestoreLostSurface();
  return status;
}

void ObjectPicture::RestoreLostSurface() {
  if (owns_surface_) {
    LoadSurfacePicture(true);
    return;
  }
  // What stood on a shared surface is known only to whoever registered it.
  std::ignore = surface_->Restore();
}

std::string ObjectPicture::FullPath() const { return world_.content.BaseDirectory() + name_; }

void ObjectPicture::LoadContextPicture() {
  Gdi& gdi = world_.ports.gdi;
  loaded_.emplace(gdi, drawing_surface_, gdi.LoadImageA(FullPath()));
  if (loaded_->Bitmap() == 0 && world_.log != nullptr) {
    const std::string file = world_.content.DisplayName(FullPath());
    world_.log->LogEvent("Picture " + file + " draws nothing: " + gdi.WhyNotLoaded(), kLogLevel,
                         "general");
  }
}

bool ObjectPicture::TryLoadSurface(bool restore) {
  loaded_.reset();
  Gdi& gdi = world_.ports.gdi;
  const BitmapHandle bitmap = gdi.LoadImageA(FullPath());
  if (bitmap == 0) return false;
  loaded_.emplace(gdi, drawing_surface_, bitmap);
  const Size size = gdi.GetObjectA(bitmap);
  if (restore) {
    if (surface_ == nullptr || surface_->Restore() != DrawStatus::kOk) return false;
  } else {
    surface_ = world_.ports.direct_draw.CreateSurface(size.width, size.height);
    owns_surface_ = true;
    if (surface_ == nullptr) return false;
  }
  return CopyBitmapToSurface(size);
}

bool ObjectPicture::CopyBitmapToSurface(Size size) {
  const ContextHandle target = surface_->GetDC();
  if (target == 0) return false;
  const bool copied =
      world_.ports.gdi.BitBlt(target, {0, 0}, size, PictureHandle(), {0, 0}, RasterOp::kCopy);
  const bool released = surface_->ReleaseDC(target) == DrawStatus::kOk;
  return copied && released;
}

}  // namespace quendle
