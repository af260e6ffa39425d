#include "backends/raster/RasterGdi.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "backends/raster/BitmapReader.h"
#include "backends/raster/BlockCopy.h"
#include "backends/raster/PolygonSpans.h"
#include "backends/raster/RasterScreen.h"
#include "platform/FileSystem.h"

namespace quendle {
namespace {

constexpr std::uint32_t kNoWord = 0xFFFFFFFF;  // equals no pixel

bool Inside(const RasterBitmap& bitmap, Point at) { return bitmap.Bounds().Holds(at); }

// A colour on a monochrome bitmap: the nearer of black and white.
std::uint32_t MonochromeWord(Color color) {
  const std::uint32_t word = WordOf(color);
  return (word & 0xFF) + (word >> 8 & 0xFF) + (word >> 16) > 382 ? 1 : 0;
}

}  // namespace

RasterGdi::RasterGdi(FileSystem& files, RasterScreen& screen, Faults& faults)
    : files_(files), screen_(screen), faults_(faults) {
  window_context_ = AddContext({.bitmap = screen.Bitmap(), .window = true});
}

ContextHandle RasterGdi::CreateContextOn(std::shared_ptr<RasterBitmap> bitmap) {
  return AddContext({.bitmap = std::move(bitmap)});
}

std::shared_ptr<RasterBitmap> RasterGdi::BitmapOf(ContextHandle context) const {
  auto found = contexts_.find(context);
  return found == contexts_.end() ? nullptr : found->second.bitmap;
}

BitmapHandle RasterGdi::LoadImageA(const std::string& path) {
  if (faults_.Fails("LoadImageA")) {
    why_not_loaded_ = "the system could not load it";
    return 0;
  }
  std::optional<std::string> bytes = files_.Read(path);
  if (!bytes) {
    why_not_loaded_ = "the file is missing or can't be read";
    return 0;
  }
  BitmapFile file = ReadBitmapFile(*bytes);
  why_not_loaded_ = file.problem;
  if (!why_not_loaded_.empty()) return 0;
  bitmaps_.emplace(++last_handle_,
                   std::make_shared<RasterBitmap>(file.width, file.height, std::move(file.pixels)));
  return last_handle_;
}

ContextHandle RasterGdi::CreateCompatibleDC(ContextHandle like) {
  if (faults_.Fails("CreateCompatibleDC")) return 0;
  if (like != 0 && Find(like) == nullptr) return 0;
  return AddContext({});
}

BitmapHandle RasterGdi::CreateCompatibleBitmap(ContextHandle like, int width, int height) {
  if (faults_.Fails("CreateCompatibleBitmap")) return 0;
  const Context* model = Find(like);
  if (model == nullptr) return 0;
  return AddBitmap(width, height, model->bitmap ? model->bitmap->Format() : PixelFormat::kColor32);
}

BitmapHandle RasterGdi::CreateMonochromeBitmap(int width, int height) {
  if (faults_.Fails("CreateMonochromeBitmap")) return 0;
  return AddBitmap(width, height, PixelFormat::kMonochrome);
}

BitmapHandle RasterGdi::SelectObject(ContextHandle context, BitmapHandle bitmap) {
  Context* target = Find(context);
  auto found = bitmaps_.find(bitmap);
  if (target == nullptr || found == bitmaps_.end() || faults_.Fails("SelectObject")) return 0;
  target->bitmap = found->second;
  return std::exchange(target->handle, bitmap);
}

void RasterGdi::DeleteObject(BitmapHandle bitmap) { bitmaps_.erase(bitmap); }

void RasterGdi::DeleteDC(ContextHandle context) {
  if (context != window_context_) contexts_.erase(context);
}

Size RasterGdi::GetObjectA(BitmapHandle bitmap) {
  auto found = bitmaps_.find(bitmap);
  if (found == bitmaps_.end() || faults_.Fails("GetObjectA")) return {};
  return found->second->GetSize();
}

bool RasterGdi::BitBlt(ContextHandle destination, Point to, Size size, ContextHandle source,
                       Point from, RasterOp operation) {
  Context* target = FindDrawable(destination);
  Context* origin = FindDrawable(source);
  if (target == nullptr || origin == nullptr || faults_.Fails("BitBlt")) return false;
  const Block block =
      ClipBlock({to, from, size}, target->bitmap->GetSize(), origin->bitmap->GetSize());
  if (block.size.width > 0) {
    CopyBlock(*target->bitmap, *origin->bitmap, block, operation,
              {origin->background, target->background});
  }
  Drawn(*target);
  return true;
}

bool RasterGdi::TransparentBlt(ContextHandle destination, Point to, Size size, ContextHandle source,
                               Point from, Color key) {
  Context* target = FindDrawable(destination);
  Context* origin = FindDrawable(source);
  if (target == nullptr || origin == nullptr || faults_.Fails("TransparentBlt")) return false;
  if (origin->bitmap->Format() != target->bitmap->Format() || origin->bitmap == target->bitmap) {
    return false;
  }
  CopyBlockKeyed(*target->bitmap, *origin->bitmap, {to, from, size},
                 key < 0 ? kNoWord : WordOf(key));
  Drawn(*target);
  return true;
}

Color RasterGdi::GetPixel(ContextHandle context, Point at) {
  const Context* source = FindDrawable(context);
  if (source == nullptr || !Inside(*source->bitmap, at)) return kInvalidColor;
  const std::uint32_t word = *source->bitmap->At(at.x, at.y);
  if (source->bitmap->Format() == PixelFormat::kMonochrome) return word != 0 ? 0xFFFFFF : 0;
  return ColorOf(word);
}

void RasterGdi::SetPixel(ContextHandle context, Point at, Color color) {
  Context* target = FindDrawable(context);
  if (target == nullptr || !Inside(*target->bitmap, at)) return;
  *target->bitmap->WritableAt(at.x, at.y) = WordOn(*target->bitmap, color);
}

Color RasterGdi::SetBkColor(ContextHandle context, Color color) {
  Context* target = Find(context);
  return target == nullptr ? kInvalidColor : std::exchange(target->background, color);
}

BitmapHandle RasterGdi::CreatePictureBitmap(const Picture& picture) {
  if (picture.Empty() || faults_.Fails("CreatePictureBitmap")) return 0;
  PixelBuffer pixels(new std::uint32_t[picture.words.size()]);
  std::copy(picture.words.begin(), picture.words.end(), pixels.get());
  bitmaps_.emplace(++last_handle_, std::make_shared<RasterBitmap>(
                                       picture.size.width, picture.size.height, std::move(pixels)));
  return last_handle_;
}

Picture RasterGdi::ReadBitmap(BitmapHandle bitmap) {
  auto found = bitmaps_.find(bitmap);
  if (found == bitmaps_.end()) return {};
  const RasterBitmap& source = *found->second;
  const std::size_t count = static_cast<std::size_t>(source.Width()) * source.Height();
  Picture picture{source.GetSize(), {source.Pixels(), source.Pixels() + count}};
  if (source.Format() == PixelFormat::kMonochrome) {
    for (std::uint32_t& word : picture.words) word = word != 0 ? 0xFFFFFF : 0;
  }
  return picture;
}

RegionHandle RasterGdi::CreateRectRgn(const Rect& area) {
  regions_.emplace(++last_handle_, std::vector<Point>{{area.left, area.top},
                                                      {area.right, area.top},
                                                      {area.right, area.bottom},
                                                      {area.left, area.bottom}});
  return last_handle_;
}

RegionHandle RasterGdi::CreatePolygonRgn(std::span<const Point> corners) {
  if (corners.size() < 3 || faults_.Fails("CreatePolygonRgn")) return 0;
  regions_.emplace(++last_handle_, std::vector<Point>(corners.begin(), corners.end()));
  return last_handle_;
}

void RasterGdi::DeleteRegion(RegionHandle region) { regions_.erase(region); }

bool RasterGdi::FillRgn(ContextHandle context, RegionHandle region, Color brush) {
  Context* target = FindDrawable(context);
  auto found = regions_.find(region);
  if (target == nullptr || found == regions_.end() || faults_.Fails("FillRgn")) return false;
  RasterBitmap& bitmap = *target->bitmap;
  const std::uint32_t word = WordOn(bitmap, brush);
  for (const PolygonSpan& span : PolygonSpans(found->second, bitmap.Bounds())) {
    std::fill_n(bitmap.WritableAt(span.left, span.y), span.right - span.left, word);
  }
  Drawn(*target);
  return true;
}

RasterGdi::Context* RasterGdi::Find(ContextHandle context) {
  auto found = contexts_.find(context);
  return found == contexts_.end() ? nullptr : &found->second;
}

RasterGdi::Context* RasterGdi::FindDrawable(ContextHandle context) {
  Context* found = Find(context);
  return found != nullptr && found->bitmap ? found : nullptr;
}

ContextHandle RasterGdi::AddContext(Context context) {
  contexts_.emplace(++last_handle_, std::move(context));
  return last_handle_;
}

BitmapHandle RasterGdi::AddBitmap(int width, int height, PixelFormat format) {
  if (!RasterBitmap::SizeIsLawful(width, height)) return 0;
  bitmaps_.emplace(++last_handle_, std::make_shared<RasterBitmap>(width, height, format));
  return last_handle_;
}

std::uint32_t RasterGdi::WordOn(const RasterBitmap& bitmap, Color color) {
  switch (bitmap.Format()) {
    case PixelFormat::kMonochrome:
      return MonochromeWord(color);
    case PixelFormat::kColor565:
      return ReduceTo565(WordOf(color));
    default:
      return WordOf(color);
  }
}

void RasterGdi::Drawn(const Context& context) {
  if (context.window) screen_.Present();
}

}  // namespace quendle
