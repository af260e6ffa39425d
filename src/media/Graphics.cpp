#include "media/Graphics.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <string>
#include <tuple>

#include "base/ContentFiles.h"
#include "base/ProcessEnds.h"
#include "base/Settings.h"
#include "media/MemoryBitmap.h"
#include "media/PictureFault.h"
#include "platform/Boxes.h"
#include "platform/DisplayModes.h"
#include "platform/GameWindow.h"
#include "platform/Ports.h"

namespace quendle {
namespace {

constexpr int kDeepest = 32;
constexpr int kShallowest = 16;
constexpr int kDepthStep = 16;
constexpr int kKeyGrey = 200;  // of each channel, in the DirectDraw path
constexpr Rect kWholeFrame{0, 0, kFrameWidth, kFrameHeight};

bool ScalesAreKnown(const ColorScales& scales) {
  return scales.red.divisor != 0 && scales.green.divisor != 0 && scales.blue.divisor != 0;
}

std::int32_t ScaleChannel(const ChannelScale& scale, int value) {
  return scale.divisor == 0 ? 0 : value / scale.divisor * scale.multiplier;
}

void FallBackToWindow(MediaWorld& world) {
  world.ports.boxes.MessageBox(
      world.settings.ProductName,
      "Warning: Could not initialize DirectX. Trying to initialize in normal window mode. "
      "Contact " +
          world.settings.SupportAddress + " if it does not work properly.");
  world.UseDirectX = false;
  world.FullScreen = false;
  world.primary_surface.reset();
  world.off_screen_surface.reset();
  world.ports.direct_draw.Release();
  InitializeWindowGraphics(world);
}

// The start of the DirectDraw path: statements that may fail, in order.
class Ladder {
 public:
  Ladder(MediaWorld& world, int window) : world_(world), window_(window) {}

  // False when a step failed at a depth that leaves no lower one.
  bool Climb() {
    using Step = bool (Ladder::*)();
    constexpr Step kSteps[] = {&Ladder::Create,        &Ladder::SetMode,         &Ladder::Cooperate,
                               &Ladder::CreatePrimary, &Ladder::CreateOffScreen, &Ladder::ReadMasks,
                               &Ladder::SetKey};
    // A failure lowers the depth and goes on with the next step: the one that failed is not
    // repeated, since only the mode depends on the depth.
    return std::all_of(std::begin(kSteps), std::end(kSteps),
                       [this](Step step) { return (this->*step)() || Lower(); });
  }

 private:
  bool Lower() {
    if (depth_ <= kShallowest) return false;
    depth_ -= kDepthStep;
    return true;
  }

  bool Create() { return world_.ports.direct_draw.Create() == DrawStatus::kOk; }

  // The one step that tries again at the lower depth.
  bool SetMode() {
    if (!world_.FullScreen) return true;
    depth_ = world_.settings.GraphicsMode;
    while (depth_ >= kShallowest) {
      const DrawStatus status =
          world_.ports.direct_draw.SetDisplayMode(kFrameWidth, kFrameHeight, depth_);
      if (status == DrawStatus::kOk) return true;
      if (!Lower()) return false;
    }
    return true;
  }

  bool Cooperate() {
    const std::uint32_t flags = world_.FullScreen ? kCooperativeFullScreen : kCooperativeNormal;
    return world_.ports.direct_draw.SetCooperativeLevel(window_, flags) == DrawStatus::kOk;
  }

  bool CreatePrimary() {
    world_.primary_surface = world_.ports.direct_draw.CreatePrimarySurface();
    return world_.primary_surface != nullptr;
  }

  bool CreateOffScreen() {
    world_.off_screen_surface = world_.ports.direct_draw.CreateSurface(kFrameWidth, kFrameHeight);
    return world_.off_screen_surface != nullptr;
  }

  bool ReadMasks() {
    return world_.off_screen_surface != nullptr &&
           ReadPixelMasks(world_, *world_.off_screen_surface);
  }

  bool SetKey() {
    if (!ScalesAreKnown(world_.scales)) return false;
    world_.TransparentColor = ConvertColorKey(world_, kKeyGrey, kKeyGrey, kKeyGrey);
    return true;
  }

  MediaWorld& world_;
  int window_;
  int depth_ = 0;  // not set while the game doesn't own the display
};

int FindWindowMode(DisplayModes& modes) {
  int depth = kDeepest;
  while (depth >= kShallowest && modes.Test(kFrameWidth, kFrameHeight, depth) < 0) {
    depth -= kDepthStep;
  }
  return depth;
}

// The key colour is the top left pixel of the art itself.
Color ReadKeyColor(MediaWorld& world) {
  Gdi& gdi = world.ports.gdi;
  const std::string path = world.content.BaseDirectory() + "\\info\\tools\\tool.bmp";
  const BitmapHandle bitmap = gdi.LoadImageA(path);
  if (bitmap == 0) FailOnPicture(world, path);
  const MemoryBitmap picture(gdi, 0, bitmap);
  const Color key = gdi.GetPixel(picture.Context(), {0, 0});
  if (key == kInvalidColor) FailOnPicture(world, path);
  return key;
}

}  // namespace

void InitializeDirectDraw(MediaWorld& world, int window) {
  world.scales = {};
  if (!Ladder(world, window).Climb()) FallBackToWindow(world);
}

void InitializeWindowGraphics(MediaWorld& world) {
  DisplayModes& modes = world.ports.display_modes;
  const int depth = FindWindowMode(modes);
  if (depth < kShallowest) {
    world.ports.boxes.MessageBox(
        world.settings.ProductName,
        "Could not initialize graphics. E-mail " + world.settings.SupportAddress + " for help.");
    throw ProcessEnds{};
  }
  modes.Set(kFrameWidth, kFrameHeight, depth);
  world.TransparentColor = ReadKeyColor(world);
}

void ReleaseDirectDraw(MediaWorld& world) {
  DirectDraw& direct_draw = world.ports.direct_draw;
  if (world.FullScreen) {
    std::ignore = direct_draw.RestoreDisplayMode();
    std::ignore = direct_draw.SetCooperativeLevel(world.ports.window.Handle(), kCooperativeNormal);
  }
  world.primary_surface.reset();
  world.off_screen_surface.reset();
  direct_draw.Release();
}

void RestoreDisplaySettings(MediaWorld& world) { world.ports.display_modes.Restore(); }

void PresentDirectX(MediaWorld& world) {
  if (!world.primary_surface || !world.off_screen_surface) return;
  Rect to = kWholeFrame;
  if (!world.FullScreen) {
    const Point corner = world.ports.window.ClientToScreen();
    to = {corner.x, corner.y, corner.x + kFrameWidth, corner.y + kFrameHeight};
  }
  const DrawStatus status =
      world.primary_surface->Blt(to, *world.off_screen_surface, kWholeFrame, kBltWait);
  if (status != DrawStatus::kSurfaceLost) return;
  std::ignore = world.off_screen_surface->Restore();
  std::ignore = world.primary_surface->Restore();
}

void PresentWindow(MediaWorld& world, ContextHandle back) {
  world.ports.gdi.BitBlt(world.ports.window.DrawingContext(), {0, 0}, {kFrameWidth, kFrameHeight},
                         back, {0, 0}, RasterOp::kCopy);
}

bool ReadPixelMasks(MediaWorld& world, Surface& surface) {
  PixelMasks masks;
  if (surface.GetPixelFormat(masks) != DrawStatus::kOk) return false;
  world.scales = {MaskToScale(masks.red), MaskToScale(masks.green), MaskToScale(masks.blue)};
  return true;
}

ChannelScale MaskToScale(std::uint32_t mask) {
  if (mask == 0) return {1, 256};
  const int zeros = std::countr_zero(mask);
  const int ones = std::min(std::countr_one(mask >> zeros), 8);
  return {static_cast<std::int32_t>(1U << zeros), 1 << (8 - ones)};
}

std::int32_t ToSurfaceColor(const ColorScales& scales, int red, int green, int blue) {
  return ScaleChannel(scales.red, red) + ScaleChannel(scales.green, green) +
         ScaleChannel(scales.blue, blue);
}

std::int32_t ConvertColorKey(const MediaWorld& world, int red, int green, int blue) {
  return ToSurfaceColor(world.scales, red, green, blue);
}

ColorChannels SplitColor(Color color) {
  char text[8];
  const auto result =
      std::to_chars(std::begin(text), std::end(text), static_cast<std::uint32_t>(color), 16);
  std::string digits(text, result.ptr);
  if (digits.size() < 6) digits.insert(0, 6 - digits.size(), '0');
  const auto pair = [&](std::size_t at) { return std::stoi(digits.substr(at, 2), nullptr, 16); };
  return {.red = pair(4), .green = pair(2), .blue = pair(0)};
}

}  // namespace quendle
