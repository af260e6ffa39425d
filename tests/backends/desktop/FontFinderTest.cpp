#include "backends/desktop/FontFinder.h"

#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

namespace quendle {
namespace {

TEST(FontFinder, ArialIsTakenBeforeItsTwin) {
  TemporaryFolder fonts;
  fonts.Make("a/LiberationSans-Regular.ttf");
  fonts.Make("z/deep/ARIAL.TTF");
  FontFinder finder({fonts.Path()});
  EXPECT_EQ(finder.Regular(), fonts.Path() / "z/deep/ARIAL.TTF");
}

TEST(FontFinder, ATwinOfArialsMetricsIsTakenBeforeAnyOtherFont) {
  TemporaryFolder fonts;
  fonts.Make("DejaVuSans.ttf");
  fonts.Make("x/LiberationSans-Regular.ttf");
  fonts.Make("x/LiberationSans-Bold.ttf");
  FontFinder finder({fonts.Path()});
  EXPECT_EQ(finder.Regular().filename(), "LiberationSans-Regular.ttf");
  EXPECT_EQ(finder.Bold().filename(), "LiberationSans-Bold.ttf");
}

TEST(FontFinder, AnEarlierFolderWinsAmongEquals) {
  TemporaryFolder own;
  TemporaryFolder system;
  own.Make("arial.ttf");
  system.Make("arial.ttf");
  EXPECT_EQ(FontFinder({own.Path(), system.Path()}).Regular(), own.Path() / "arial.ttf");
}

TEST(FontFinder, AnyFontServesWhenNoKnownOneIsThere) {
  TemporaryFolder fonts;
  fonts.Make("readme.txt");
  fonts.Make("some/Zebra.otf");
  fonts.Make("some/Apple.ttf");
  FontFinder finder({fonts.Path()});
  EXPECT_EQ(finder.Regular().filename(), "Apple.ttf");
  EXPECT_EQ(finder.Bold(), finder.Regular());
}

TEST(FontFinder, WithoutAFontBothPathsAreEmpty) {
  TemporaryFolder fonts;
  FontFinder finder({fonts.Path(), "/no/such/folder"});
  EXPECT_TRUE(finder.Regular().empty());
  EXPECT_TRUE(finder.Bold().empty());
}

}  // namespace
}  // namespace quendle
