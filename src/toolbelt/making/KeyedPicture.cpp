#include "toolbelt/making/KeyedPicture.h"

namespace quendle {
namespace {

constexpr std::uint32_t kGround = 0xC8C8C8;

// The 16-bit value that a colour has on a display of 5-6-5.
constexpr std::uint32_t To565(std::uint32_t color) {
  return (color >> 19 & 31) << 11 | (color >> 10 & 63) << 5 | (color >> 3 & 31);
}

// At 16 bits all greens from 200 to 203 are one: the way out of the key is the shorter one.
std::uint32_t LeaveKey(std::uint32_t color) {
  if (color == kGround) return 0xC7C7C7;
  if (To565(color) != To565(kGround)) return color;
  const std::uint32_t green = (color >> 8 & 0xFF) <= 201 ? 199 : 204;
  return (color & 0xFF00FF) | green << 8;
}

}  // namespace

void KeyPicture(SheerPicture& picture) {
  for (std::uint32_t& pixel : picture.pixels) {
    const bool opaque = pixel >> 24 >= 128;
    pixel = opaque ? LeaveKey(pixel & 0xFFFFFF) : kGround;
  }
}

}  // namespace quendle
