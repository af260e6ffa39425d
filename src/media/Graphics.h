// Start and end of the two drawing paths, colour conversion and presenting.
#pragma once

#include <cstdint>

#include "media/MediaWorld.h"
#include "platform/Gdi.h"

namespace quendle {

// Starts the DirectDraw path for a game window. A step that fails at depth 32 lowers the depth to
// 16 and the next step follows; a failure at 16 or below shows a warning and starts the window path
// instead, with UseDirectX and FullScreen cleared.
void InitializeDirectDraw(MediaWorld& world, int window);

// Starts the window path: an 800 by 600 mode at 32 or 16 bits, and the key colour from the top
// left pixel of \info\tools\tool.bmp. Without a mode a box is shown and the process ends
// (ProcessEnds); a missing or damaged tool.bmp is fatal, since nothing could be keyed.
void InitializeWindowGraphics(MediaWorld& world);

// Gives the display back and drops the surfaces of the DirectDraw path.
void ReleaseDirectDraw(MediaWorld& world);

// Returns the display of the window path to its registered mode.
void RestoreDisplaySettings(MediaWorld& world);

// Shows the composed frame: copies the off-screen surface to the visible one. Surfaces found lost
// are restored, and the next frame shows again.
void PresentDirectX(MediaWorld& world);

// Shows the composed frame of a memory context in the game window.
void PresentWindow(MediaWorld& world, ContextHandle back);

// Reads the pixel format of a surface into `world.scales`. False when the surface doesn't tell.
bool ReadPixelMasks(MediaWorld& world, Surface& surface);

// Multiplier (place of the lowest bit) and divisor (8 bits down to the mask's width) of a mask.
ChannelScale MaskToScale(std::uint32_t mask);

// A colour of 8-bit channels as a pixel of the surface whose scales these are; a channel whose
// scale isn't known counts as 0.
std::int32_t ToSurfaceColor(const ColorScales& scales, int red, int green, int blue);

// The key colour of that value in the pixel format of the off-screen surface.
std::int32_t ConvertColorKey(const MediaWorld& world, int red, int green, int blue);

struct ColorChannels {
  int red = 0;
  int green = 0;
  int blue = 0;
  friend bool operator==(const ColorChannels&, const ColorChannels&) = default;
};

// The channels of a packed colour, red in the low byte. Nothing asks for them: colours are compared
// packed.
ColorChannels SplitColor(Color color);

// Copies the top left `size` of `source` to `to`, leaving the destination where the source has the
// colour `key`. Works on contexts that know raster operations only.
void TransparentCopy(Gdi& gdi, ContextHandle destination, ContextHandle source, Point to, Size size,
                     Color key);

}  // namespace quendle
