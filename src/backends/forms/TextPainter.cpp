#include "backends/forms/TextPainter.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/Text.h"

namespace quendle {
namespace {

FontSize SizeAt(const TextStyle& style, double scale) {
  return {std::max(1, static_cast<int>(std::lround(style.size * scale))), style.bold};
}

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines(1);
  for (char c : text) {
    if (c == '\n') {
      lines.emplace_back();
    } else if (c != '\r') {
      lines.back() += c;
    }
  }
  return lines;
}

}  // namespace

double TextPainter::WidthOf(std::string_view text, const TextStyle& style, double scale) {
  if (!HasFont() || text.empty()) return 0;
  return fonts_.WidthOf(text, SizeAt(style, scale)) / scale;
}

double TextPainter::LineHeight(const TextStyle& style, double scale) {
  const int pixels = HasFont() ? fonts_.LineHeight(SizeAt(style, scale)) : 0;
  return pixels == 0 ? style.size : pixels / scale;
}

std::vector<std::string> TextPainter::Wrap(std::string_view text, const TextStyle& style,
                                           double width, double scale) {
  std::vector<std::string> wrapped;
  for (const std::string& line : LinesOf(text)) {
    std::string current;
    for (const std::string& word : SplitTokens(line, ' ')) {
      std::string longer = current.empty() ? word : current + ' ' + word;
      if (!current.empty() && WidthOf(longer, style, scale) > width) {
        wrapped.push_back(current);
        current = word;
      } else {
        current = longer;
      }
    }
    wrapped.push_back(current);
  }
  return wrapped;
}

std::vector<std::string> TextPainter::WrapAnywhere(std::string_view text, const TextStyle& style,
                                                   double width, double scale) {
  std::vector<std::string> pieces;
  for (std::string& line : Wrap(text, style, width, scale)) {
    while (line.size() > 1 && WidthOf(line, style, scale) > width) {
      // The longest beginning that fits, at least one letter.
      std::size_t fits = 1;
      for (std::size_t beyond = line.size(); beyond - fits > 1;) {
        const std::size_t middle = (fits + beyond) / 2;
        (WidthOf(line.substr(0, middle), style, scale) > width ? beyond : fits) = middle;
      }
      pieces.push_back(line.substr(0, fits));
      line.erase(0, fits);
    }
    pieces.push_back(std::move(line));
  }
  return pieces;
}

void TextPainter::Draw(Canvas& canvas, std::string_view text, const TextStyle& style, double x,
                       double y) {
  if (!HasFont() || text.empty()) return;
  const LetterPicture letters = fonts_.Draw(text, SizeAt(style, canvas.Scale()), style.underline);
  auto left = static_cast<int>(std::lround((x + canvas.Origin().x) * canvas.Scale()));
  auto top = static_cast<int>(std::lround((y + canvas.Origin().y) * canvas.Scale()));
  auto covered = letters.coverage.begin();
  for (int row = 0; row < letters.size.height; ++row) {
    for (int column = 0; column < letters.size.width; ++column, ++covered) {
      if (*covered > 0) canvas.Blend(left + column, top + row, style.color, *covered);
    }
  }
}

void TextPainter::DrawCentred(Canvas& canvas, std::string_view text, const TextStyle& style,
                              Vec centre) {
  double width = WidthOf(text, style, canvas.Scale());
  double height = LineHeight(style, canvas.Scale());
  Draw(canvas, text, style, centre.x - width / 2, centre.y - height / 2);
}

}  // namespace quendle
