#include "backends/raster/RasterGdi.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "backends/raster/PictureFiles.h"
#include "backends/raster/RasterScreen.h"

namespace quendle {
namespace {

constexpr Color kWhite = 0xFFFFFF;
constexpr Color kRed = PackColor(255, 0, 0);
constexpr Color kKey = PackColor(200, 200, 200);

class RasterGdiTest : public ::testing::Test {
 protected:
  // A context with a new bitmap drawn as rows of letters.
  ContextHandle Draw(const std::vector<std::string>& rows) {
    files_.Put("drawn.bmp", Drawn(rows));
    return Selected(gdi_.LoadImageA("drawn.bmp"));
  }
  ContextHandle Selected(BitmapHandle bitmap) {
    const ContextHandle context = gdi_.CreateCompatibleDC(0);
    gdi_.SelectObject(context, bitmap);
    return context;
  }
  ContextHandle Monochrome(int width, int height) {
    return Selected(gdi_.CreateMonochromeBitmap(width, height));
  }
  // The pixels of a context as letters; '?' for a colour without one.
  std::vector<std::string> Seen(ContextHandle context) {
    const auto bitmap = gdi_.BitmapOf(context);
    std::vector<std::string> rows;
    for (int y = 0; y < bitmap->Height(); ++y) {
      std::string row;
      for (int x = 0; x < bitmap->Width(); ++x) {
        char seen = '?';
        for (char letter : std::string("krgbw.")) {
          if (gdi_.GetPixel(context, {x, y}) == ColorOf(WordOfLetter(letter))) seen = letter;
        }
        row += seen;
      }
      rows.push_back(row);
    }
    return rows;
  }

  using Rows = std::vector<std::string>;

  PictureFiles files_;
  RasterScreen screen_;
  Faults faults_;
  RasterGdi gdi_{files_, screen_, faults_};
};

TEST_F(RasterGdiTest, ABitmapIsLoadedAtItsOwnSize) {
  files_.Put("a.bmp", Drawn({"rgb", "kw."}));
  const BitmapHandle bitmap = gdi_.LoadImageA("A.BMP");
  EXPECT_EQ(gdi_.GetObjectA(bitmap), (Size{3, 2}));
  EXPECT_EQ(gdi_.WhyNotLoaded(), "");
  EXPECT_EQ(Seen(Selected(bitmap)), (Rows{"rgb", "kw."}));
}

TEST_F(RasterGdiTest, MissingDamagedAndRefusedFilesGiveZeroAndTheReason) {
  EXPECT_EQ(gdi_.LoadImageA("none.bmp"), 0);
  EXPECT_EQ(gdi_.WhyNotLoaded(), "the file is missing or can't be read");
  files_.Put("bad.bmp", "BMx");
  EXPECT_EQ(gdi_.LoadImageA("bad.bmp"), 0);
  EXPECT_EQ(gdi_.WhyNotLoaded(), "it is not a bitmap file");
  files_.Put("good.bmp", Drawn({"r"}));
  faults_.Plan("LoadImageA", 0, 1, false);
  EXPECT_EQ(gdi_.LoadImageA("good.bmp"), 0);
  EXPECT_EQ(gdi_.WhyNotLoaded(), "the system could not load it");
  EXPECT_NE(gdi_.LoadImageA("good.bmp"), 0);
  EXPECT_EQ(gdi_.WhyNotLoaded(), "");
  EXPECT_EQ(gdi_.LiveBitmaps(), 1U);
}

TEST_F(RasterGdiTest, UnknownHandlesDoNothing) {
  const ContextHandle empty = gdi_.CreateCompatibleDC(0);
  const ContextHandle good = Draw({"rg"});
  EXPECT_EQ(gdi_.GetPixel(0, {0, 0}), kInvalidColor);
  EXPECT_EQ(gdi_.GetPixel(empty, {0, 0}), kInvalidColor);
  EXPECT_EQ(gdi_.CreateCompatibleDC(999), 0);
  EXPECT_EQ(gdi_.CreateCompatibleBitmap(999, 1, 1), 0);
  EXPECT_EQ(gdi_.GetObjectA(999), (Size{}));
  EXPECT_EQ(gdi_.SelectObject(good, 999), 0);
  EXPECT_EQ(gdi_.SelectObject(999, 0), 0);
  EXPECT_EQ(gdi_.SetBkColor(999, 0), kInvalidColor);
  EXPECT_FALSE(gdi_.BitBlt(good, {0, 0}, {1, 1}, empty, {0, 0}, RasterOp::kCopy));
  EXPECT_FALSE(gdi_.TransparentBlt(empty, {0, 0}, {1, 1}, good, {0, 0}, kKey));
  gdi_.SetPixel(0, {0, 0}, kRed);
  gdi_.DeleteObject(999);
  gdi_.DeleteDC(999);
  EXPECT_EQ(Seen(good), (Rows{"rg"}));
}

TEST_F(RasterGdiTest, SelectingGivesTheBitmapBefore) {
  const ContextHandle context = gdi_.CreateCompatibleDC(0);
  const BitmapHandle first = gdi_.CreateCompatibleBitmap(context, 1, 1);
  const BitmapHandle second = gdi_.CreateCompatibleBitmap(context, 2, 2);
  EXPECT_EQ(gdi_.SelectObject(context, first), 0);
  EXPECT_EQ(gdi_.SelectObject(context, second), first);
}

TEST_F(RasterGdiTest, BitmapsBeyondTheLawfulSizeAreNotMade) {
  for (int side : {0, -1, 4097, std::numeric_limits<int>::max()}) {
    EXPECT_EQ(gdi_.CreateCompatibleBitmap(gdi_.WindowContext(), side, 10), 0);
    EXPECT_EQ(gdi_.CreateMonochromeBitmap(10, side), 0);
  }
}

TEST_F(RasterGdiTest, DeletedHandlesAreGoneAndTheWindowStays) {
  const ContextHandle context = Draw({"r"});
  gdi_.DeleteDC(context);
  EXPECT_EQ(gdi_.GetPixel(context, {0, 0}), kInvalidColor);
  EXPECT_EQ(gdi_.LiveContexts(), 0U);
  gdi_.DeleteDC(gdi_.WindowContext());
  EXPECT_EQ(gdi_.GetPixel(gdi_.WindowContext(), {0, 0}), 0);
}

TEST_F(RasterGdiTest, APixelOutsideTheBitmapIsTheInvalidColour) {
  const ContextHandle context = Draw({"rg", "bw"});
  for (Point outside : {Point{-1, 0}, Point{0, -1}, Point{2, 0}, Point{0, 2}}) {
    EXPECT_EQ(gdi_.GetPixel(context, outside), kInvalidColor);
    gdi_.SetPixel(context, outside, kWhite);
  }
  EXPECT_EQ(Seen(context), (Rows{"rg", "bw"}));
}

// S is the source, D the destination: each operation over the four pairs of black and white.
TEST_F(RasterGdiTest, RasterOperationsCombineSourceAndDestination) {
  const std::vector<std::pair<RasterOp, std::string>> expected{{RasterOp::kCopy, "..ww"},
                                                               {RasterOp::kAnd, "...w"},
                                                               {RasterOp::kPaint, ".www"},
                                                               {RasterOp::kMergePaint, "ww.w"},
                                                               {RasterOp::kNotSourceCopy, "ww.."}};
  for (const auto& [operation, row] : expected) {
    const ContextHandle source = Draw({"..ww"});
    const ContextHandle target = Draw({".w.w"});
    EXPECT_TRUE(gdi_.BitBlt(target, {0, 0}, {4, 1}, source, {0, 0}, operation));
    EXPECT_EQ(Seen(target), Rows{row}) << static_cast<std::uint32_t>(operation);
  }
}

TEST_F(RasterGdiTest, ColourToMonochromeMarksTheSourcesBackground) {
  const ContextHandle source = Draw({"krk."});
  const ContextHandle mask = Monochrome(4, 1);
  EXPECT_EQ(gdi_.SetBkColor(source, kKey), kWhite);
  gdi_.BitBlt(mask, {0, 0}, {4, 1}, source, {0, 0}, RasterOp::kCopy);
  EXPECT_EQ(Seen(mask), Rows{"w.w."});
  EXPECT_EQ(gdi_.SetBkColor(source, kWhite), kKey);
}

TEST_F(RasterGdiTest, MonochromeToColourIsBlackAndTheDestinationsBackground) {
  const ContextHandle mask = Monochrome(2, 1);
  gdi_.SetPixel(mask, {1, 0}, kWhite);
  const ContextHandle target = Draw({"gg"});
  gdi_.BitBlt(target, {0, 0}, {2, 1}, mask, {0, 0}, RasterOp::kCopy);
  EXPECT_EQ(Seen(target), Rows{".w"});
  gdi_.SetBkColor(target, kRed);
  gdi_.BitBlt(target, {0, 0}, {2, 1}, mask, {0, 0}, RasterOp::kCopy);
  EXPECT_EQ(Seen(target), Rows{".r"});
}

TEST_F(RasterGdiTest, AMonochromeBitmapInvertsOntoItself) {
  const ContextHandle mask = Monochrome(3, 2);
  gdi_.SetPixel(mask, {1, 0}, kWhite);
  gdi_.BitBlt(mask, {0, 0}, {3, 2}, mask, {0, 0}, RasterOp::kNotSourceCopy);
  EXPECT_EQ(Seen(mask), (Rows{"w.w", "www"}));
}

TEST_F(RasterGdiTest, ABitmapCopiesOverItselfInBothDirections) {
  const ContextHandle down = Draw({"rg", "bw", ".k"});
  gdi_.BitBlt(down, {0, 1}, {2, 2}, down, {0, 0}, RasterOp::kCopy);
  EXPECT_EQ(Seen(down), (Rows{"rg", "rg", "bw"}));
  const ContextHandle up = Draw({"rg", "bw", ".k"});
  gdi_.BitBlt(up, {0, 0}, {2, 2}, up, {0, 1}, RasterOp::kCopy);
  EXPECT_EQ(Seen(up), (Rows{"bw", ".k", ".k"}));
  const ContextHandle right = Draw({"rgb"});
  gdi_.BitBlt(right, {1, 0}, {2, 1}, right, {0, 0}, RasterOp::kCopy);
  EXPECT_EQ(Seen(right), Rows{"rrg"});
}

TEST_F(RasterGdiTest, CopiesAreClippedToBothBitmaps) {
  const Rows square{"rg", "bw"};
  const auto copied = [&](Point to, Size size, Point from) {
    const ContextHandle target = Draw({"...", "...", "..."});
    EXPECT_TRUE(gdi_.BitBlt(target, to, size, Draw(square), from, RasterOp::kCopy));
    const ContextHandle keyed = Draw({"...", "...", "..."});
    EXPECT_TRUE(gdi_.TransparentBlt(keyed, to, size, Draw(square), from, kKey));
    EXPECT_EQ(Seen(keyed), Seen(target));
    return Seen(target);
  };
  EXPECT_EQ(copied({-1, -1}, {2, 2}, {0, 0}), (Rows{"w..", "...", "..."}));
  EXPECT_EQ(copied({2, 2}, {2, 2}, {0, 0}), (Rows{"...", "...", "..r"}));
  EXPECT_EQ(copied({0, 0}, {9, 9}, {1, 0}), (Rows{"g..", "w..", "..."}));
  EXPECT_EQ(copied({0, 0}, {3, 3}, {-1, -1}), (Rows{"...", ".rg", ".bw"}));
  EXPECT_EQ(copied({5, 0}, {2, 2}, {0, 0}), (Rows{"...", "...", "..."}));
  EXPECT_EQ(copied({0, 0}, {-2, 2}, {0, 0}), (Rows{"...", "...", "..."}));
  constexpr int kMost = std::numeric_limits<int>::max(), kLeast = std::numeric_limits<int>::min();
  EXPECT_EQ(copied({kLeast, kMost}, {kMost, kMost}, {kMost, kLeast}), (Rows{"...", "...", "..."}));
  EXPECT_EQ(copied({0, 0}, {kMost, kMost}, {0, 0}), (Rows{"rg.", "bw.", "..."}));
}

TEST_F(RasterGdiTest, TheKeyColourIsLeftOut) {
  const ContextHandle target = Draw({"gggg"});
  EXPECT_TRUE(gdi_.TransparentBlt(target, {0, 0}, {4, 1}, Draw({"krkb"}), {0, 0}, kKey));
  EXPECT_EQ(Seen(target), Rows{"grgb"});
}

TEST_F(RasterGdiTest, TheKeyIsComparedExactly) {
  const ContextHandle source = Draw({"kkk"});
  gdi_.SetPixel(source, {1, 0}, PackColor(200, 200, 201));
  const ContextHandle target = Draw({"ggg"});
  gdi_.TransparentBlt(target, {0, 0}, {3, 1}, source, {0, 0}, kKey);
  EXPECT_EQ(Seen(target), Rows{"g?g"});
}

TEST_F(RasterGdiTest, TheInvalidColourKeysNothing) {
  const ContextHandle target = Draw({"gg"});
  gdi_.TransparentBlt(target, {0, 0}, {2, 1}, Draw({"wk"}), {0, 0}, kInvalidColor);
  EXPECT_EQ(Seen(target), Rows{"wk"});
}

TEST_F(RasterGdiTest, APictureThatChangedIsDrawnAsItIsNow) {
  const ContextHandle source = Draw({"kr"});
  const ContextHandle target = Draw({"gg"});
  gdi_.TransparentBlt(target, {0, 0}, {2, 1}, source, {0, 0}, kKey);
  gdi_.SetPixel(source, {0, 0}, kWhite);
  gdi_.TransparentBlt(target, {0, 0}, {2, 1}, source, {0, 0}, kKey);
  EXPECT_EQ(Seen(target), Rows{"wr"});
}

TEST_F(RasterGdiTest, ACopyToTheWindowIsAPresentedFrame) {
  int seen = 0;
  screen_.OnPresent([&] { ++seen; });
  gdi_.BitBlt(gdi_.WindowContext(), {0, 0}, {2, 1}, Draw({"rg"}), {0, 0}, RasterOp::kCopy);
  EXPECT_EQ(seen, 1);
  EXPECT_EQ(screen_.Presented(), 1);
  EXPECT_EQ(screen_.Frame()[0], 0xFF0000U);
  EXPECT_EQ(screen_.Frame()[1], 0x00FF00U);
  gdi_.BitBlt(Draw({"rg"}), {0, 0}, {2, 1}, Draw({"gg"}), {0, 0}, RasterOp::kCopy);
  EXPECT_EQ(screen_.Presented(), 1);
}

TEST_F(RasterGdiTest, EachOperationFailsOnDemand) {
  const ContextHandle source = Draw({"r"});
  const ContextHandle target = Draw({"g"});
  for (const char* name : {"CreateCompatibleDC", "CreateCompatibleBitmap", "CreateMonochromeBitmap",
                           "SelectObject", "GetObjectA", "BitBlt", "TransparentBlt"}) {
    faults_.Plan(name, 0, 1, false);
  }
  EXPECT_EQ(gdi_.CreateCompatibleDC(0), 0);
  EXPECT_EQ(gdi_.CreateCompatibleBitmap(source, 1, 1), 0);
  EXPECT_EQ(gdi_.CreateMonochromeBitmap(1, 1), 0);
  const BitmapHandle bitmap = gdi_.CreateMonochromeBitmap(1, 1);
  EXPECT_EQ(gdi_.SelectObject(source, bitmap), 0);
  EXPECT_EQ(gdi_.GetObjectA(bitmap), (Size{}));
  EXPECT_FALSE(gdi_.BitBlt(target, {0, 0}, {1, 1}, source, {0, 0}, RasterOp::kCopy));
  EXPECT_FALSE(gdi_.TransparentBlt(target, {0, 0}, {1, 1}, source, {0, 0}, kKey));
  EXPECT_EQ(Seen(target), Rows{"g"});
  EXPECT_EQ(Seen(source), Rows{"r"});
}

}  // namespace
}  // namespace quendle
