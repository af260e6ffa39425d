#include "backends/raster/BlockCopy.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace quendle {
namespace {

// One axis of ClipBlock, in 64 bits so that no coordinate overflows.
void ClipAxis(int& to, int& from, int& size, int target, int source) {
  const std::int64_t cut =
      std::max<std::int64_t>({0, -static_cast<std::int64_t>(to), -static_cast<std::int64_t>(from)});
  const std::int64_t begin_to = to + cut, begin_from = from + cut;
  const std::int64_t left =
      std::min({size - cut, static_cast<std::int64_t>(target) - begin_to, source - begin_from});
  if (left <= 0) {
    size = 0;
    return;
  }
  to = static_cast<int>(begin_to);
  from = static_cast<int>(begin_from);
  size = static_cast<int>(left);
}

bool SameWords(const RasterBitmap& target, const RasterBitmap& source) {
  return target.Format() == source.Format() ||
         (target.Format() == PixelFormat::kColor32 && source.Format() == PixelFormat::kColor565);
}

// The words of a source row as the target would hold them.
void ConvertRow(const RasterBitmap& target, const RasterBitmap& source, const std::uint32_t* row,
                int width, const BlockColors& colors, std::uint32_t* out) {
  const bool from_mono = source.Format() == PixelFormat::kMonochrome;
  const bool to_mono = target.Format() == PixelFormat::kMonochrome;
  if (from_mono && !to_mono) {
    const std::uint32_t one = WordOf(colors.target_background);
    std::transform(row, row + width, out, [one](std::uint32_t bit) { return bit != 0 ? one : 0; });
  } else if (!from_mono && to_mono) {
    const std::uint32_t ground = WordOf(colors.source_background);
    std::transform(row, row + width, out,
                   [ground](std::uint32_t word) { return word == ground ? 1U : 0U; });
  } else {
    std::copy_n(row, width, out);
  }
  if (target.Format() == PixelFormat::kColor565) {
    std::transform(out, out + width, out, ReduceTo565);
  }
}

std::uint32_t Combine(RasterOp operation, std::uint32_t source, std::uint32_t target) {
  switch (operation) {
    case RasterOp::kCopy:
      return source;
    case RasterOp::kAnd:
      return source & target;
    case RasterOp::kPaint:
      return source | target;
    case RasterOp::kMergePaint:
      return ~source | target;
    case RasterOp::kNotSourceCopy:
      return ~source;
  }
  return target;
}

void CopyPlain(RasterBitmap& target, RasterBitmap& source, const Block& block) {
  std::uint32_t* to = target.WritableAt(block.to.x, block.to.y);
  const std::uint32_t* from = source.At(block.from.x, block.from.y);
  std::size_t bytes = static_cast<std::size_t>(block.size.width) * 4;
  int rows = block.size.height;
  if (block.size.width == target.Width() && block.size.width == source.Width()) {
    bytes *= static_cast<std::size_t>(rows);
    rows = 1;
  }
  for (int y = 0; y < rows; ++y) {
    std::memcpy(to, from, bytes);
    to += target.Width();
    from += source.Width();
  }
}

}  // namespace

Block ClipBlock(const Block& block, Size target, Size source) {
  Block clipped = block;
  ClipAxis(clipped.to.x, clipped.from.x, clipped.size.width, target.width, source.width);
  ClipAxis(clipped.to.y, clipped.from.y, clipped.size.height, target.height, source.height);
  if (clipped.size.width == 0 || clipped.size.height == 0) clipped.size = {};
  return clipped;
}

void CopyBlock(RasterBitmap& target, RasterBitmap& source, const Block& block, RasterOp operation,
               const BlockColors& colors) {
  const bool one_bitmap = &target == &source;
  if (operation == RasterOp::kCopy && SameWords(target, source) && !one_bitmap) {
    CopyPlain(target, source, block);
    return;
  }
  const std::uint32_t mask = target.Format() == PixelFormat::kMonochrome ? 1 : 0xFFFFFF;
  // Within one bitmap a row must be read before it is overwritten.
  const bool upward = one_bitmap && block.from.y < block.to.y;
  std::vector<std::uint32_t> row(static_cast<std::size_t>(block.size.width));
  for (int i = 0; i < block.size.height; ++i) {
    const int y = upward ? block.size.height - 1 - i : i;
    ConvertRow(target, source, source.At(block.from.x, block.from.y + y), block.size.width, colors,
               row.data());
    std::uint32_t* to = target.WritableAt(block.to.x, block.to.y + y);
    std::transform(row.begin(), row.end(), to, to, [=](std::uint32_t s, std::uint32_t d) {
      return Combine(operation, s, d) & mask;
    });
  }
}

void CopyBlockKeyed(RasterBitmap& target, RasterBitmap& source, const Block& block,
                    std::uint32_t key) {
  // The spans are those of the whole rectangle, so that a picture which slides over the edge of
  // the target finds them again.
  const Block whole = ClipBlock({{0, 0}, block.from, block.size}, block.size, source.GetSize());
  const Block seen = ClipBlock(block, target.GetSize(), source.GetSize());
  if (seen.size.width == 0) return;
  const Rect area{whole.from.x, whole.from.y, whole.from.x + whole.size.width,
                  whole.from.y + whole.size.height};
  const OpaqueSpans& spans = source.Spans(area, key);
  const std::uint32_t* from = source.At(area.left, area.top);
  std::uint32_t* to = target.WritableAt(seen.to.x, seen.to.y);
  if (seen.size == whole.size) {
    spans.Copy(from, source.Width(), to, target.Width());
    return;
  }
  const int left = seen.from.x - area.left, top = seen.from.y - area.top;
  spans.CopyPart({left, top, left + seen.size.width, top + seen.size.height}, from, source.Width(),
                 to, target.Width());
}

}  // namespace quendle
