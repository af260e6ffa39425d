#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "backends/forms/FontLibrary.h"

namespace quendle {

// Letters that are the same on every machine: blocks, wide for capitals and narrow for the rest.
class BlockFonts : public FontLibrary {
 public:
  bool HasFont() const override { return has_font; }
  int WidthOf(std::string_view text, const FontSize& size) override {
    int width = 0;
    for (char c : text) width += WidthOf(c, size);
    return width;
  }
  int LineHeight(const FontSize& size) override { return size.pixels * 5 / 4; }
  LetterPicture Draw(std::string_view text, const FontSize& size, bool underline) override {
    LetterPicture picture{{WidthOf(text, size), LineHeight(size)}, {}};
    for (int y = 0; y < picture.size.height; ++y) {
      for (char c : text) {
        for (int x = 0; x < WidthOf(c, size); ++x) {
          const bool ink = c != ' ' && x > 0 && y > 1 && y < size.pixels;
          const bool line = underline && y == size.pixels;
          picture.coverage.push_back(ink || line ? 255 : 0);
        }
      }
    }
    return picture;
  }

  bool has_font = true;

 private:
  static int WidthOf(char c, const FontSize& size) {
    const bool capital = c >= 'A' && c <= 'Z';
    return std::max(2, size.pixels * (capital ? 4 : 3) / 6);
  }
};

}  // namespace quendle
