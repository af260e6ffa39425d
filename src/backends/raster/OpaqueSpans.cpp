#include "backends/raster/OpaqueSpans.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace quendle {
namespace {

constexpr int kLongSpan = 64;

// A call of memcpy costs as much as a short span; four pixels at a time stay inline.
inline void CopyPixels(std::uint32_t* target, const std::uint32_t* source, int count) {
  if (count < 4) {
    for (int i = 0; i < count; ++i) target[i] = source[i];
    return;
  }
  if (count >= kLongSpan) {
    std::memcpy(target, source, static_cast<std::size_t>(count) * 4);
    return;
  }
  for (int i = 0; i + 4 < count; i += 4) std::memcpy(target + i, source + i, 16);
  std::memcpy(target + count - 4, source + count - 4, 16);  // the tail overlaps
}

void CopyRows(std::uint32_t* target, int target_pitch, const std::uint32_t* source,
              int source_pitch, int width, int height) {
  if (width == source_pitch && width == target_pitch) {
    width *= height;
    height = 1;
  }
  for (int y = 0; y < height; ++y) {
    std::memcpy(target, source, static_cast<std::size_t>(width) * 4);
    target += target_pitch;
    source += source_pitch;
  }
}

}  // namespace

OpaqueSpans::OpaqueSpans(const std::uint32_t* pixels, int pitch, const Rect& area,
                         std::uint32_t key)
    : width_(area.Width()), height_(area.Height()) {
  rows_.reserve(static_cast<std::size_t>(height_) + 1);
  bool keyed = false;
  for (int y = 0; y < height_; ++y) {
    rows_.push_back(static_cast<std::uint32_t>(spans_.size()));
    const std::uint32_t* row =
        pixels + static_cast<std::ptrdiff_t>(area.top + y) * pitch + area.left;
    const std::uint32_t* end = row + width_;
    for (const std::uint32_t* begin = row; begin < end;) {
      const std::uint32_t* stop = std::find(begin, end, key);
      if (stop > begin) {
        spans_.push_back({static_cast<std::uint16_t>(y), static_cast<std::uint16_t>(begin - row),
                          static_cast<std::uint16_t>(stop - begin)});
      }
      keyed = keyed || stop < end;
      begin = stop + 1;
    }
  }
  rows_.push_back(static_cast<std::uint32_t>(spans_.size()));
  whole_ = !keyed;
  if (whole_) {
    spans_.clear();
    rows_.clear();
  }
  spans_.shrink_to_fit();
}

void OpaqueSpans::Copy(const std::uint32_t* source, int source_pitch, std::uint32_t* target,
                       int target_pitch) const {
  if (whole_) {
    CopyRows(target, target_pitch, source, source_pitch, width_, height_);
    return;
  }
  for (const Span& span : spans_) {
    const std::ptrdiff_t y = span.y;
    CopyPixels(target + y * target_pitch + span.x, source + y * source_pitch + span.x, span.length);
  }
}

void OpaqueSpans::CopyPart(const Rect& part, const std::uint32_t* source, int source_pitch,
                           std::uint32_t* target, int target_pitch) const {
  if (whole_) {
    const std::ptrdiff_t top = part.top;
    CopyRows(target, target_pitch, source + top * source_pitch + part.left, source_pitch,
             part.Width(), part.Height());
    return;
  }
  for (std::uint32_t i = rows_[part.top]; i < rows_[part.bottom]; ++i) {
    const Span& span = spans_[i];
    const int begin = std::max<int>(span.x, part.left);
    const int end = std::min<int>(span.x + span.length, part.right);
    if (begin >= end) continue;
    const std::ptrdiff_t row = span.y - part.top;
    CopyPixels(target + row * target_pitch + (begin - part.left),
               source + static_cast<std::ptrdiff_t>(span.y) * source_pitch + begin, end - begin);
  }
}

}  // namespace quendle
