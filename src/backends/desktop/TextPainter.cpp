#include "backends/desktop/TextPainter.h"

#include <SDL.h>
#include <SDL_ttf.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/Text.h"

namespace quendle {
namespace {

struct FreeSurface {
  void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};

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

void TextPainter::CloseFont::operator()(_TTF_Font* font) const { TTF_CloseFont(font); }

TextPainter::TextPainter(const FontFinder& fonts) : opened_library_(TTF_Init() == 0) {
  if (opened_library_) {
    regular_ = fonts.Regular().string();
    bold_ = fonts.Bold().string();
  }
}

TextPainter::~TextPainter() {
  fonts_.clear();
  if (opened_library_) TTF_Quit();
}

double TextPainter::WidthOf(std::string_view text, const TextStyle& style, double scale) {
  _TTF_Font* font = FontOf(style, scale);
  int width = 0;
  if (font != nullptr && !text.empty()) {
    TTF_SizeUTF8(font, ToUtf8(text).c_str(), &width, nullptr);
  }
  return width / scale;
}

double TextPainter::LineHeight(const TextStyle& style, double scale) {
  _TTF_Font* font = FontOf(style, scale);
  return font == nullptr ? style.size : TTF_FontLineSkip(font) / scale;
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
  _TTF_Font* font = FontOf(style, canvas.Scale());
  if (font == nullptr || text.empty()) return;
  TTF_SetFontStyle(font, style.underline ? TTF_STYLE_UNDERLINE : TTF_STYLE_NORMAL);
  SDL_Color white{255, 255, 255, 255};
  std::unique_ptr<SDL_Surface, FreeSurface> letters(
      TTF_RenderUTF8_Blended(font, ToUtf8(text).c_str(), white));
  if (letters == nullptr) return;
  auto left = static_cast<int>(std::lround((x + canvas.Origin().x) * canvas.Scale()));
  auto top = static_cast<int>(std::lround((y + canvas.Origin().y) * canvas.Scale()));
  for (int row = 0; row < letters->h; ++row) {
    const auto* bytes = static_cast<const Uint8*>(letters->pixels) + row * letters->pitch;
    const auto* pixels = reinterpret_cast<const Uint32*>(bytes);
    for (int column = 0; column < letters->w; ++column) {
      Uint32 alpha = pixels[column] >> 24;
      if (alpha > 0) canvas.Blend(left + column, top + row, style.color, static_cast<int>(alpha));
    }
  }
}

void TextPainter::DrawCentred(Canvas& canvas, std::string_view text, const TextStyle& style,
                              Vec centre) {
  double width = WidthOf(text, style, canvas.Scale());
  double height = LineHeight(style, canvas.Scale());
  Draw(canvas, text, style, centre.x - width / 2, centre.y - height / 2);
}

_TTF_Font* TextPainter::FontOf(const TextStyle& style, double scale) {
  if (!HasFont()) return nullptr;
  int pixels = std::max(1, static_cast<int>(std::lround(style.size * scale)));
  auto [entry, is_new] = fonts_.try_emplace({pixels, style.bold});
  if (is_new) {
    entry->second.reset(TTF_OpenFont((style.bold ? bold_ : regular_).c_str(), pixels));
    if (entry->second != nullptr) TTF_SetFontHinting(entry->second.get(), TTF_HINTING_LIGHT);
  }
  return entry->second.get();
}

}  // namespace quendle
