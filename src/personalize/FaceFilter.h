// The filter that shrinks a cut-out face, and its arithmetic. Pure functions.
#pragma once

#include <cstdint>
#include <functional>

#include "platform/Geometry.h"

namespace quendle::face {

// x minus 0.5, to the nearest integer with ties to the even one: 1.0 gives 0, 3.0 and 2.0 give 2.
// The "floor" of the filter, which isn't the mathematical one.
std::int16_t HalfBelowToEven(double x);
// x plus 0.5, rounded the same way: the "ceiling" that goes with it; asked for by nothing.
std::int16_t HalfAboveToEven(double x);

std::uint8_t ExtractR(Color color);
std::uint8_t ExtractG(Color color);
std::uint8_t ExtractB(Color color);

// Mixes two colours: `alpha` 255 gives the first one, 0 the second.
Color BlendColor(Color color1, Color color2, std::uint8_t alpha);

// A pixel of the source; negative outside of it.
using PixelReader = std::function<Color(Point)>;

// The pixel at `at` of a picture shrunk (or grown) from `source` to `target`, both in pixels:
// bilinear between four pixels, each channel rounded three times. Pixels outside count as black.
Color ResizedPixel(const PixelReader& read, Size source, Size target, Point at);

}  // namespace quendle::face
