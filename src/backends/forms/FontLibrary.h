#pragma once

#include <cstdint>
#include <string_view>
#include <tuple>
#include <vector>

#include "platform/Geometry.h"

namespace quendle {

// A font at one size; `pixels` is the height of its letters' em.
struct FontSize {
  int pixels = 12;
  bool bold = false;
  friend bool operator<(const FontSize& a, const FontSize& b) {
    return std::tie(a.pixels, a.bold) < std::tie(b.pixels, b.bold);
  }
};

// A line of letters: how much of each pixel they cover, 0 to 255, row by row.
struct LetterPicture {
  Size size;
  std::vector<std::uint8_t> coverage;
};

// The port for text: the letters of the font that serves as Arial. Texts are 8-bit, as content has
// them, and one line each.
class FontLibrary {
 public:
  virtual ~FontLibrary() = default;
  // Without a font nothing else is asked.
  virtual bool HasFont() const = 0;
  // Width of a line in pixels.
  virtual int WidthOf(std::string_view text, const FontSize& size) = 0;
  // From line to line in pixels; 0 for a font that can't be read.
  virtual int LineHeight(const FontSize& size) = 0;
  // Empty for a font that can't be read.
  virtual LetterPicture Draw(std::string_view text, const FontSize& size, bool underline) = 0;
};

}  // namespace quendle
