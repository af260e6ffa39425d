#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "backends/forms/Canvas.h"
#include "backends/forms/FontLibrary.h"

namespace quendle {

// How a piece of text looks. Sizes are form units: 1/96 inch at scale 1.
struct TextStyle {
  double size = 12;
  bool bold = false;
  bool underline = false;
  Rgba color;
};

// Draws text (8-bit, as content has it) in the font that serves as Arial.
class TextPainter {
 public:
  // `fonts` must outlive the painter. Without a font nothing is drawn and every text has no width:
  // see HasFont.
  explicit TextPainter(FontLibrary& fonts) : fonts_(fonts) {}

  bool HasFont() const { return fonts_.HasFont(); }
  // Width of one line and height of any line, in form units at the given scale.
  double WidthOf(std::string_view text, const TextStyle& style, double scale);
  double LineHeight(const TextStyle& style, double scale);
  // The text cut into lines of at most `width` at blanks; line breaks are kept.
  std::vector<std::string> Wrap(std::string_view text, const TextStyle& style, double width,
                                double scale);
  // The same, and a word wider than that is cut.
  std::vector<std::string> WrapAnywhere(std::string_view text, const TextStyle& style, double width,
                                        double scale);
  // Draws one line with its top left corner at (x, y).
  void Draw(Canvas& canvas, std::string_view text, const TextStyle& style, double x, double y);
  // Draws one line centred on x and y.
  void DrawCentred(Canvas& canvas, std::string_view text, const TextStyle& style, Vec centre);

 private:
  FontLibrary& fonts_;
};

}  // namespace quendle
