#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "backends/forms/FontLibrary.h"

namespace quendle {

class FontFinder;

// The letters of the fonts that were found, by SDL_ttf.
class SdlFonts : public FontLibrary {
 public:
  explicit SdlFonts(const FontFinder& found);
  ~SdlFonts() override;
  SdlFonts(const SdlFonts&) = delete;
  SdlFonts& operator=(const SdlFonts&) = delete;

  bool HasFont() const override { return !regular_.empty(); }
  int WidthOf(std::string_view text, const FontSize& size) override;
  int LineHeight(const FontSize& size) override;
  LetterPicture Draw(std::string_view text, const FontSize& size, bool underline) override;

 private:
  struct OpenFont;
  // The font at a size, opened once; it holds none when it can't be read.
  OpenFont& FontOf(const FontSize& size);

  std::string regular_;
  std::string bold_;
  bool opened_library_ = false;
  std::map<FontSize, std::unique_ptr<OpenFont>> fonts_;
};

}  // namespace quendle
