#include "backends/desktop/SdlFonts.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "backends/desktop/FontFinder.h"

namespace quendle {
namespace {

TEST(SdlFonts, TextHasTheWidthOfItsLettersInTheFontThatWasFound) {
  SdlFonts fonts{FontFinder(FontFinder::SystemFolders())};
  ASSERT_TRUE(fonts.HasFont());
  const int narrow = fonts.WidthOf("ii", {16, false});
  EXPECT_GT(narrow, 0);
  EXPECT_GT(fonts.WidthOf("WW", {16, false}), narrow * 2);
  EXPECT_GT(fonts.WidthOf("WW", {32, false}), fonts.WidthOf("WW", {16, true}));
  EXPECT_GE(fonts.LineHeight({16, false}), 16);
}

TEST(SdlFonts, APictureOfLettersHasACoverageForEachOfItsPixels) {
  SdlFonts fonts{FontFinder(FontFinder::SystemFolders())};
  const LetterPicture plain = fonts.Draw("Lena", {16, false}, false);
  EXPECT_EQ(plain.size.width, fonts.WidthOf("Lena", {16, false}));
  EXPECT_EQ(static_cast<int>(plain.coverage.size()), plain.size.width * plain.size.height);
  EXPECT_EQ(*std::ranges::max_element(plain.coverage), 255);
  EXPECT_EQ(*std::ranges::min_element(plain.coverage), 0);
  EXPECT_NE(fonts.Draw("Lena", {16, false}, true).coverage, plain.coverage) << "underlined";
}

TEST(SdlFonts, AFontThatCannotBeReadHasNeitherHeightNorLetters) {
  SdlFonts none{FontFinder({})};
  EXPECT_FALSE(none.HasFont());
  EXPECT_EQ(none.LineHeight({16, false}), 0);
  EXPECT_TRUE(none.Draw("Lena", {16, false}, false).coverage.empty());
}

}  // namespace
}  // namespace quendle
