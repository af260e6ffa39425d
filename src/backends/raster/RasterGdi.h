#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "backends/raster/RasterBitmap.h"
#include "platform/Faults.h"
#include "platform/Gdi.h"

namespace quendle {

class FileSystem;
class RasterScreen;

// Memory contexts and bitmaps in our own memory. Handles are never used twice. Operations that can
// be planned to fail: LoadImageA, CreateCompatibleDC, CreateCompatibleBitmap,
// CreateMonochromeBitmap, SelectObject, GetObjectA, BitBlt, TransparentBlt.
class RasterGdi : public Gdi {
 public:
  // All must outlive this object.
  RasterGdi(FileSystem& files, RasterScreen& screen, Faults& faults);

  // The context of the game window: a copy to it is a presented frame.
  ContextHandle WindowContext() const { return window_context_; }
  // A context on a bitmap that someone else owns, until DeleteDC.
  ContextHandle CreateContextOn(std::shared_ptr<RasterBitmap> bitmap);
  // The bitmap selected into a context, or nothing.
  std::shared_ptr<RasterBitmap> BitmapOf(ContextHandle context) const;
  // How many handles are alive beside the window's, to find leaks.
  std::size_t LiveContexts() const { return contexts_.size() - 1; }
  std::size_t LiveBitmaps() const { return bitmaps_.size(); }
  std::size_t LiveRegions() const { return regions_.size(); }

  BitmapHandle LoadImageA(const std::string& path) override;
  std::string WhyNotLoaded() const override { return why_not_loaded_; }
  // `like` may be 0: a context like the display.
  ContextHandle CreateCompatibleDC(ContextHandle like) override;
  BitmapHandle CreateCompatibleBitmap(ContextHandle like, int width, int height) override;
  BitmapHandle CreateMonochromeBitmap(int width, int height) override;
  BitmapHandle SelectObject(ContextHandle context, BitmapHandle bitmap) override;
  void DeleteObject(BitmapHandle bitmap) override;
  void DeleteDC(ContextHandle context) override;
  Size GetObjectA(BitmapHandle bitmap) override;
  bool BitBlt(ContextHandle destination, Point to, Size size, ContextHandle source, Point from,
              RasterOp operation) override;
  bool TransparentBlt(ContextHandle destination, Point to, Size size, ContextHandle source,
                      Point from, Color key) override;
  Color GetPixel(ContextHandle context, Point at) override;
  void SetPixel(ContextHandle context, Point at, Color color) override;
  Color SetBkColor(ContextHandle context, Color color) override;
  BitmapHandle CreatePictureBitmap(const Picture& picture) override;
  Picture ReadBitmap(BitmapHandle bitmap) override;
  RegionHandle CreateRectRgn(const Rect& area) override;
  RegionHandle CreatePolygonRgn(std::span<const Point> corners) override;
  void DeleteRegion(RegionHandle region) override;
  bool FillRgn(ContextHandle context, RegionHandle region, Color brush) override;

 private:
  struct Context {
    std::shared_ptr<RasterBitmap> bitmap;
    BitmapHandle handle = 0;  // of the bitmap; 0 for a bitmap of someone else
    Color background = 0xFFFFFF;
    bool window = false;
  };

  Context* Find(ContextHandle context);
  // A context that has a bitmap; null otherwise.
  Context* FindDrawable(ContextHandle context);
  ContextHandle AddContext(Context context);
  BitmapHandle AddBitmap(int width, int height, PixelFormat format);
  // The word that stands for a colour on a bitmap.
  static std::uint32_t WordOn(const RasterBitmap& bitmap, Color color);
  // Tells the screen when the window was drawn on.
  void Drawn(const Context& context);

  FileSystem& files_;
  RasterScreen& screen_;
  Faults& faults_;
  std::unordered_map<ContextHandle, Context> contexts_;
  std::unordered_map<BitmapHandle, std::shared_ptr<RasterBitmap>> bitmaps_;
  std::unordered_map<RegionHandle, std::vector<Point>> regions_;  // the corners of its outline
  std::int32_t last_handle_ = 0;
  ContextHandle window_context_ = 0;
  std::string why_not_loaded_;
};

}  // namespace quendle
