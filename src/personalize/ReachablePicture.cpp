#include "personalize/ReachablePicture.h"

#include <algorithm>
#include <utility>

namespace quendle {
namespace {

std::uint32_t MeanOfBlock(const Picture& picture, int left, int top, int side) {
  std::uint64_t red = 0;
  std::uint64_t green = 0;
  std::uint64_t blue = 0;
  for (int y = top; y < top + side; ++y) {
    for (int x = left; x < left + side; ++x) {
      const std::uint32_t word = picture.At(x, y);
      red += word >> 16 & 255;
      green += word >> 8 & 255;
      blue += word & 255;
    }
  }
  const std::uint64_t count = static_cast<std::uint64_t>(side) * side;
  const auto mean = [count](std::uint64_t sum) {
    return static_cast<std::uint32_t>((sum + count / 2) / count);
  };
  return mean(red) << 16 | mean(green) << 8 | mean(blue);
}

Picture Shrunk(const Picture& picture, int factor) {
  // A strip narrower than the factor keeps one pixel.
  const Size size{std::max(picture.size.width / factor, 1),
                  std::max(picture.size.height / factor, 1)};
  const int side = std::min({factor, picture.size.width, picture.size.height});
  Picture small{size, {}};
  small.words.reserve(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      small.words.push_back(MeanOfBlock(picture, x * factor, y * factor, side));
    }
  }
  return small;
}

}  // namespace

SharedPicture ReachablePicture(SharedPicture picture) {
  const int longest = std::max(picture->size.width, picture->size.height);
  if (longest <= kFurthestPixel) return picture;
  const int factor = (longest + kHandySide - 1) / kHandySide;
  return std::make_shared<const Picture>(Shrunk(*picture, factor));
}

}  // namespace quendle
