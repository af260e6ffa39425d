#include "backends/raster/RasterBitmap.h"

#include <algorithm>
#include <utility>

namespace quendle {
namespace {

// A picture whose rectangle slides over its edge has new spans each time: enough are kept for any
// sheet of frames, and the rest may be found anew.
constexpr std::size_t kMostKept = 256;

}  // namespace

bool RasterBitmap::SizeIsLawful(int width, int height) {
  return width > 0 && height > 0 && width <= kLargestSide && height <= kLargestSide;
}

RasterBitmap::RasterBitmap(int width, int height, PixelFormat format)
    : width_(width),
      height_(height),
      format_(format),
      pixels_(std::make_unique<std::uint32_t[]>(static_cast<std::size_t>(width) * height)) {}

RasterBitmap::RasterBitmap(int width, int height, PixelBuffer pixels)
    : width_(width), height_(height), format_(PixelFormat::kColor32), pixels_(std::move(pixels)) {}

void RasterBitmap::Clear() { std::fill_n(WritableAt(0, 0), Offset(0, height_), 0U); }

const OpaqueSpans& RasterBitmap::Spans(const Rect& area, std::uint32_t key) {
  if (key != spans_key_ || spans_.size() >= kMostKept) {
    spans_.clear();
    spans_key_ = key;
  }
  // Each coordinate fits 16 bits, since no side is longer than 4096.
  const std::uint64_t name =
      static_cast<std::uint64_t>(area.left) | static_cast<std::uint64_t>(area.top) << 16 |
      static_cast<std::uint64_t>(area.right) << 32 | static_cast<std::uint64_t>(area.bottom) << 48;
  auto found = spans_.find(name);
  if (found == spans_.end()) {
    found = spans_.try_emplace(name, pixels_.get(), width_, area, key).first;
  }
  return found->second;
}

}  // namespace quendle
