#pragma once

#include <memory>
#include <optional>

#include "backends/raster/BlitQueue.h"
#include "backends/raster/RasterBitmap.h"
#include "platform/DirectDraw.h"
#include "platform/Faults.h"

namespace quendle {

class RasterGdi;
class RasterScreen;
class RasterSurface;

// The one surface of a device onto which copies may wait; null for none.
struct BlitWait {
  RasterSurface* surface = nullptr;
};

// A surface in our own memory. Lost memory is really gone: it reads black after Restore.
// Operations that can be planned to fail: GetPixelFormat, SetColorKey, Blt, GetDC, ReleaseDC,
// Restore; a "Blt" planned as lost loses the memory of its source.
//
// Copies onto an off-screen surface wait until its pixels are asked for, or until anything but such
// a copy happens to a surface of the device; so no source changes while it waits to be copied.
class RasterSurface : public Surface {
 public:
  // `screen` is null for an off-screen surface; copies to the visible surface are presented there.
  // `depth` is 16 or 32. The references must outlive the surface.
  RasterSurface(RasterGdi& gdi, Faults& faults, BlitWait& wait,
                std::shared_ptr<RasterBitmap> bitmap, int depth, RasterScreen* screen);
  ~RasterSurface() override;
  RasterSurface(const RasterSurface&) = delete;
  RasterSurface& operator=(const RasterSurface&) = delete;

  // In a window the visible surface is the desktop's: rectangles are moved by the client's origin.
  void UseDesktopCoordinates() { desktop_coordinates_ = true; }
  // Takes the surface's memory away, as another program does that takes the display.
  void Lose() { lost_ = true; }
  // The pixels, with all copies done.
  const RasterBitmap& Bitmap() {
    DrawWaiting();
    return *bitmap_;
  }
  // The next copies are drawn whole, as on a surface of which nothing is known.
  void ForgetDrawn();

  Size GetSize() const override { return bitmap_->GetSize(); }
  DrawStatus GetPixelFormat(PixelMasks& masks) override;
  // Only one key is known: `low` and `high` must be equal.
  DrawStatus SetColorKey(std::uint32_t flags, std::int32_t low, std::int32_t high) override;
  // A keyed copy from a surface without a key is refused.
  DrawStatus Blt(const Rect& to, Surface& source, const Rect& from, std::uint32_t flags) override;
  // While the context is out, copies from and to the surface are refused.
  ContextHandle GetDC() override;
  DrawStatus ReleaseDC(ContextHandle context) override;
  DrawStatus Restore() override;

 private:
  // What the visible surface shows.
  struct Shown {
    std::weak_ptr<RasterBitmap> source;
    std::uint64_t source_version = 0;
    std::uint64_t own_version = 0;
    Rect to;
    Rect from;
  };

  DrawStatus Copy(const Rect& to, RasterSurface& source, const Rect& from, std::uint32_t flags);
  void CopyPlain(const Rect& to, RasterSurface& source, const Rect& from);
  bool ShowsAll(const RasterSurface& source, const Rect& to, const Rect& from) const;
  void EndWait();
  void DrawWaiting();

  RasterGdi& gdi_;
  Faults& faults_;
  BlitWait& wait_;
  std::shared_ptr<RasterBitmap> bitmap_;
  int depth_;
  RasterScreen* screen_;
  bool desktop_coordinates_ = false;
  bool lost_ = false;
  std::optional<std::uint32_t> key_;  // as a word of the bitmap
  ContextHandle context_ = 0;         // given out by GetDC
  BlitQueue queue_;
  std::vector<Rect> changes_;         // by the last copies that waited
  std::uint64_t version_before_ = 0;  // of the bitmap, without those changes and with them
  std::uint64_t version_after_ = 0;
  Shown shown_;
};

}  // namespace quendle
