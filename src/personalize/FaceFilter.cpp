#include "personalize/FaceFilter.h"

#include <algorithm>

#include "base/FatalError.h"
#include "base/Numbers.h"

namespace quendle::face {
namespace {

constexpr double kOpaque = 255.0;
constexpr Color kWhite = PackColor(255, 255, 255);

using Extract = std::uint8_t (*)(Color);

int ToByte(double value) {
  const double rounded = RoundHalfEven(value);
  if (rounded < 0 || rounded > kOpaque) throw FatalError("a colour of the face is out of range");
  return static_cast<int>(rounded);
}

// The two pixels next to a place on one axis and the weight of the second one.
struct Neighbours {
  Neighbours(double place, int extent)
      : first(HalfBelowToEven(place)),
        second(first + 1 >= extent ? first : first + 1),
        part(place - first) {}
  int first;
  int second;
  double part;
};

std::uint8_t BlendChannel(int channel1, int channel2, int alpha) {
  const double value = ((255 - alpha) * channel2) / kOpaque + (channel1 * alpha) / kOpaque;
  return static_cast<std::uint8_t>(RoundHalfEven(value));
}

}  // namespace

std::int16_t HalfBelowToEven(double x) { return ToInt16(x - 0.5, "place in a picture"); }

std::int16_t HalfAboveToEven(double x) { return ToInt16(x + 0.5, "place in a picture"); }

std::uint8_t ExtractR(Color color) { return static_cast<std::uint8_t>(color & 255); }

std::uint8_t ExtractG(Color color) { return static_cast<std::uint8_t>(color / 256 & 255); }

std::uint8_t ExtractB(Color color) { return static_cast<std::uint8_t>(color / 65536 & 255); }

Color BlendColor(Color color1, Color color2, std::uint8_t alpha) {
  return PackColor(BlendChannel(ExtractR(color1), ExtractR(color2), alpha),
                   BlendChannel(ExtractG(color1), ExtractG(color2), alpha),
                   BlendChannel(ExtractB(color1), ExtractB(color2), alpha));
}

Color ResizedPixel(const PixelReader& read, Size source, Size target, Point at) {
  const double sx = static_cast<double>(source.width) / target.width;
  const double sy = static_cast<double>(source.height) / target.height;
  const Neighbours x(at.x * sx, source.width);
  const Neighbours y(at.y * sy, source.height);
  const auto pixel = [&](int column, int row) { return std::max(read({column, row}), 0); };
  const Color c00 = pixel(x.first, y.first);
  const Color c10 = pixel(x.second, y.first);
  const Color c01 = pixel(x.first, y.second);
  const Color c11 = pixel(x.second, y.second);
  const auto channel = [&](Extract e) {
    const int top = ToByte(e(c00) * (1 - x.part) + e(c10) * x.part);
    const int bottom = ToByte(e(c01) * (1 - x.part) + e(c11) * x.part);
    return static_cast<int>(RoundHalfEven(top * (1 - y.part) + bottom * y.part)) & 255;
  };
  const int blue = channel(ExtractB);
  const int green = channel(ExtractG);
  const int red = channel(ExtractR);
  return BlendColor(PackColor(red, green, blue), kWhite, 255);
}

}  // namespace quendle::face
