#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_map>

#include "backends/raster/OpaqueSpans.h"
#include "platform/Geometry.h"

namespace quendle {

// What the pixels of a bitmap can be. All are kept as 32-bit words: a colour as 0x00RRGGBB, in
// 5-6-5 with channels that are widened from 5 or 6 bits; a monochrome pixel as 0 or 1.
enum class PixelFormat { kColor32, kColor565, kMonochrome };

using PixelBuffer = std::unique_ptr<std::uint32_t[]>;

// A picture in memory, row by row from the top, without padding.
class RasterBitmap {
 public:
  static constexpr int kLargestSide = 4096;

  // True for sizes from 1 by 1 to 4096 by 4096.
  static bool SizeIsLawful(int width, int height);

  // All pixels 0. The size must be lawful.
  RasterBitmap(int width, int height, PixelFormat format);
  // Takes over width * height words.
  RasterBitmap(int width, int height, PixelBuffer pixels);

  int Width() const { return width_; }
  int Height() const { return height_; }
  Size GetSize() const { return {width_, height_}; }
  Rect Bounds() const { return {0, 0, width_, height_}; }
  PixelFormat Format() const { return format_; }

  const std::uint32_t* Pixels() const { return pixels_.get(); }
  const std::uint32_t* At(int x, int y) const { return pixels_.get() + Offset(x, y); }
  // The pixels for writing; what was known of their spans is forgotten, and the version changes.
  std::uint32_t* WritableAt(int x, int y) {
    if (!spans_.empty()) spans_.clear();
    ++version_;
    return pixels_.get() + Offset(x, y);
  }
  void Clear();
  // Two equal versions of one bitmap have the same pixels.
  std::uint64_t Version() const { return version_; }

  // The spans of a rectangle inside the bitmap without the colour `key` (a word of the bitmap).
  // Valid until the next call that writes or asks for spans.
  const OpaqueSpans& Spans(const Rect& area, std::uint32_t key);

 private:
  std::ptrdiff_t Offset(int x, int y) const { return static_cast<std::ptrdiff_t>(y) * width_ + x; }

  const int width_;
  const int height_;
  const PixelFormat format_;
  PixelBuffer pixels_;
  std::uint64_t version_ = 0;
  std::uint32_t spans_key_ = 0;
  std::unordered_map<std::uint64_t, OpaqueSpans> spans_;  // by rectangle
};

// The word that a 5-6-5 bitmap keeps for a word of 8-bit channels: each loses its lowest bits.
constexpr std::uint32_t ReduceTo565(std::uint32_t word) {
  const std::uint32_t red = word >> 19 & 31, green = word >> 10 & 63, blue = word >> 3 & 31;
  return (red << 3 | red >> 2) << 16 | (green << 2 | green >> 4) << 8 | (blue << 3 | blue >> 2);
}

// The word of a 16-bit pixel value.
constexpr std::uint32_t WordOf565(std::uint32_t value) {
  return ReduceTo565((value >> 11 & 31) << 19 | (value >> 5 & 63) << 10 | (value & 31) << 3);
}

// A packed colour (red lowest) as a word (blue lowest).
constexpr std::uint32_t WordOf(Color color) {
  const std::uint32_t value = static_cast<std::uint32_t>(color);
  return (value & 0xFF) << 16 | (value & 0xFF00) | (value >> 16 & 0xFF);
}

// The same exchange the other way.
constexpr Color ColorOf(std::uint32_t word) {
  return static_cast<Color>((word & 0xFF) << 16 | (word & 0xFF00) | (word >> 16 & 0xFF));
}

}  // namespace quendle
