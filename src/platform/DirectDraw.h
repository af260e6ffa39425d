#pragma once

#include <cstdint>
#include <memory>

#include "platform/Gdi.h"
#include "platform/Geometry.h"

namespace quendle {

enum class [[nodiscard]] DrawStatus : std::uint32_t{
    kOk = 0,
    kSurfaceLost = 0x887601C2,  // the surface's memory is gone until Restore
    kFailed = 1};

struct PixelMasks {
  std::uint32_t red = 0;
  std::uint32_t green = 0;
  std::uint32_t blue = 0;
};

inline constexpr std::uint32_t kBltWait = 0x1000000;
inline constexpr std::uint32_t kBltWaitKeySource = 0x1008000;
inline constexpr std::uint32_t kCooperativeFullScreen = 19;
inline constexpr std::uint32_t kCooperativeNormal = 8;
inline constexpr std::uint32_t kColorKeySourceBlt = 8;

// A picture in the memory of the display.
class Surface {
 public:
  virtual ~Surface() = default;
  virtual Size GetSize() const = 0;
  virtual DrawStatus GetPixelFormat(PixelMasks& masks) = 0;
  // `low` and `high` are values in the surface's own pixel format.
  virtual DrawStatus SetColorKey(std::uint32_t flags, std::int32_t low, std::int32_t high) = 0;
  // Copies `from` of `source` onto `to`; refuses (kFailed) a rectangle that leaves either surface
  // or is empty or turned over. Sizes are equal.
  virtual DrawStatus Blt(const Rect& to, Surface& source, const Rect& from,
                         std::uint32_t flags) = 0;
  // A context that draws on the surface; 0 on failure. Ends with ReleaseDC.
  virtual ContextHandle GetDC() = 0;
  virtual DrawStatus ReleaseDC(ContextHandle context) = 0;
  virtual DrawStatus Restore() = 0;
};

using SurfaceRef = std::shared_ptr<Surface>;

// The display device of the DirectDraw path.
class DirectDraw {
 public:
  virtual ~DirectDraw() = default;
  virtual DrawStatus Create() = 0;
  virtual DrawStatus SetDisplayMode(int width, int height, int depth) = 0;
  virtual DrawStatus SetCooperativeLevel(int window, std::uint32_t flags) = 0;
  // The visible surface; nothing on failure.
  virtual SurfaceRef CreatePrimarySurface() = 0;
  // An off-screen plain surface in the display's pixel format; nothing on failure.
  virtual SurfaceRef CreateSurface(int width, int height) = 0;
  virtual DrawStatus RestoreDisplayMode() = 0;
  virtual void Release() = 0;
};

}  // namespace quendle
