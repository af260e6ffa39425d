#include "backends/desktop/SdlFonts.h"

#include <SDL.h>
#include <SDL_ttf.h>

#include "backends/desktop/FontFinder.h"
#include "base/Text.h"

namespace quendle {
namespace {

struct FreeSurface {
  void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};

}  // namespace

struct SdlFonts::OpenFont {
  OpenFont(const std::string& file, int pixels) : font(TTF_OpenFont(file.c_str(), pixels)) {
    if (font != nullptr) TTF_SetFontHinting(font, TTF_HINTING_LIGHT);
  }
  ~OpenFont() {
    if (font != nullptr) TTF_CloseFont(font);
  }
  OpenFont(const OpenFont&) = delete;
  OpenFont& operator=(const OpenFont&) = delete;

  TTF_Font* font;
};

SdlFonts::SdlFonts(const FontFinder& found) : opened_library_(TTF_Init() == 0) {
  if (opened_library_) {
    regular_ = found.Regular().string();
    bold_ = found.Bold().string();
  }
}

SdlFonts::~SdlFonts() {
  fonts_.clear();
  if (opened_library_) TTF_Quit();
}

int SdlFonts::WidthOf(std::string_view text, const FontSize& size) {
  TTF_Font* font = FontOf(size).font;
  int width = 0;
  if (font != nullptr) TTF_SizeUTF8(font, ToUtf8(text).c_str(), &width, nullptr);
  return width;
}

int SdlFonts::LineHeight(const FontSize& size) {
  TTF_Font* font = FontOf(size).font;
  return font == nullptr ? 0 : TTF_FontLineSkip(font);
}

LetterPicture SdlFonts::Draw(std::string_view text, const FontSize& size, bool underline) {
  TTF_Font* font = FontOf(size).font;
  if (font == nullptr) return {};
  TTF_SetFontStyle(font, underline ? TTF_STYLE_UNDERLINE : TTF_STYLE_NORMAL);
  const SDL_Color white{255, 255, 255, 255};
  std::unique_ptr<SDL_Surface, FreeSurface> letters(
      TTF_RenderUTF8_Blended(font, ToUtf8(text).c_str(), white));
  if (letters == nullptr) return {};
  LetterPicture picture{{letters->w, letters->h}, {}};
  for (int row = 0; row < letters->h; ++row) {
    const auto* bytes = static_cast<const Uint8*>(letters->pixels) + row * letters->pitch;
    const auto* pixels = reinterpret_cast<const Uint32*>(bytes);
    for (int column = 0; column < letters->w; ++column) {
      picture.coverage.push_back(static_cast<std::uint8_t>(pixels[column] >> 24));
    }
  }
  return picture;
}

SdlFonts::OpenFont& SdlFonts::FontOf(const FontSize& size) {
  std::unique_ptr<OpenFont>& font = fonts_[size];
  if (font == nullptr) {
    font = std::make_unique<OpenFont>(size.bold ? bold_ : regular_, size.pixels);
  }
  return *font;
}

}  // namespace quendle
