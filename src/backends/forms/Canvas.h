#pragma once

#include <cstdint>
#include <vector>

#include "backends/forms/Path.h"
#include "platform/Geometry.h"

namespace quendle {

// A colour with opacity; 255 is opaque.
struct Rgba {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;
  std::uint8_t a = 255;
  friend bool operator==(const Rgba&, const Rgba&) = default;
};

constexpr Rgba Hex(std::uint32_t rgb, int alpha = 255) {
  return {static_cast<std::uint8_t>(rgb >> 16 & 255), static_cast<std::uint8_t>(rgb >> 8 & 255),
          static_cast<std::uint8_t>(rgb & 255), static_cast<std::uint8_t>(alpha)};
}

// The colour `part` of the way (0 to 1) from `a` to `b`.
Rgba Mix(Rgba a, Rgba b, double part);

// An opaque picture that shapes are painted on with smooth edges. Shapes are given in form units,
// `scale` pixels each, shifted by the origin.
class Canvas {
 public:
  // A picture of `size` pixels, white.
  Canvas(Size size, double scale);

  Size PixelSize() const { return size_; }
  double Scale() const { return scale_; }
  // Shifts what is drawn from now on, in form units.
  void SetOrigin(Vec origin) { origin_ = origin; }
  Vec Origin() const { return origin_; }

  // Shapes change only pixels within `area` (form units, from the form's corner) until the clip is
  // lifted again.
  void SetClip(const Rect& area);
  void LiftClip();
  // What may change, in pixels.
  Rect PixelClip() const { return clip_; }

  void Clear(Rgba color);
  // Fills the inside of the path; overlapping outlines of one direction add up.
  void Fill(const Path& path, Rgba color);
  // The same, with the colour going from `top` to `bottom` between two heights in form units.
  void FillShaded(const Path& path, Rgba top, Rgba bottom, double from_y, double to_y);
  // Draws the outline with round joins and ends.
  void Stroke(const Path& path, double width, Rgba color);
  // Fills whole pixels from the rounded corners of a rectangle in form units, without smoothing.
  void FillRect(double x, double y, double width, double height, Rgba color);
  // Lays a colour on one pixel; `coverage` 0 to 255. Pixels outside the picture or the clip are
  // ignored.
  void Blend(int x, int y, Rgba color, int coverage);

  // Rows of 32-bit pixels, 0xFFRRGGBB.
  const std::vector<std::uint32_t>& Pixels() const { return pixels_; }
  // The pixel at a position in form units.
  Rgba At(double x, double y) const;

 private:
  struct Shade {
    Rgba top;
    Rgba bottom;
    double from_y = 0;
    double to_y = 0;
  };
  void FillWith(const Path& path, const Shade& shade);

  Size size_;
  double scale_;
  Vec origin_;
  Rect clip_;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace quendle
