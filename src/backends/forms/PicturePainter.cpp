#include "backends/forms/PicturePainter.h"

#include <algorithm>
#include <cmath>

namespace quendle {
namespace {

// So many samples along each side of a pixel are enough for the eye, and quick.
constexpr int kMostSamples = 4;

// The pixels of one side of a picture that fall on a pixel of the stretched one.
struct Block {
  Block(int at, int from, int to)
      : begin(static_cast<double>(at) * from / to),
        step(static_cast<double>(from) / to),
        count(std::clamp(static_cast<int>(std::ceil(step)), 1, kMostSamples)),
        last(from - 1) {}
  int Sample(int number) const {
    return std::min(static_cast<int>(begin + step * (number + 0.5) / count), last);
  }
  double begin;
  double step;
  int count;
  int last;
};

std::uint32_t Mean(const Picture& picture, const Block& columns, const Block& rows) {
  std::uint32_t red = 0;
  std::uint32_t green = 0;
  std::uint32_t blue = 0;
  for (int j = 0; j < rows.count; ++j) {
    for (int i = 0; i < columns.count; ++i) {
      const std::uint32_t word = picture.At(columns.Sample(i), rows.Sample(j));
      red += word >> 16 & 255;
      green += word >> 8 & 255;
      blue += word & 255;
    }
  }
  const auto count = static_cast<std::uint32_t>(rows.count * columns.count);
  return red / count << 16 | green / count << 8 | blue / count;
}

}  // namespace

void DrawPicture(Canvas& canvas, const Picture& picture, const Rect& area) {
  if (picture.Empty()) return;
  const double scale = canvas.Scale();
  const auto left = static_cast<int>(std::lround((area.left + canvas.Origin().x) * scale));
  const auto top = static_cast<int>(std::lround((area.top + canvas.Origin().y) * scale));
  const auto width = static_cast<int>(std::lround(area.Width() * scale));
  const auto height = static_cast<int>(std::lround(area.Height() * scale));
  const Rect seen = canvas.PixelClip();
  for (int y = std::max(top, seen.top); y < std::min(top + height, seen.bottom); ++y) {
    const Block rows(y - top, picture.size.height, height);
    for (int x = std::max(left, seen.left); x < std::min(left + width, seen.right); ++x) {
      const Block columns(x - left, picture.size.width, width);
      canvas.Blend(x, y, Hex(Mean(picture, columns, rows)), 255);
    }
  }
}

Size FittingSize(Size picture, Size room) {
  const double part = std::min({1.0, static_cast<double>(room.width) / picture.width,
                                static_cast<double>(room.height) / picture.height});
  return {std::max(static_cast<int>(picture.width * part), 1),
          std::max(static_cast<int>(picture.height * part), 1)};
}

Picture Stretched(const Picture& picture, Size size) {
  Picture result{size, {}};
  result.words.reserve(static_cast<std::size_t>(size.width) *
                       static_cast<std::size_t>(size.height));
  for (int y = 0; y < size.height; ++y) {
    const Block rows(y, picture.size.height, size.height);
    for (int x = 0; x < size.width; ++x) {
      result.words.push_back(Mean(picture, Block(x, picture.size.width, size.width), rows));
    }
  }
  return result;
}

}  // namespace quendle
