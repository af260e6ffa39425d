#include "backends/forms/FrameScaling.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

constexpr ScaleMode kModes[] = {ScaleMode::kSharp, ScaleMode::kWhole, ScaleMode::kSmooth};

TEST(FrameScaling, TheFrameKeepsItsAspectAndStandsInTheMiddle) {
  EXPECT_EQ(FrameArea({1920, 1080}, ScaleMode::kSharp), (Rect{240, 0, 1680, 1080}));
  EXPECT_EQ(FrameArea({1000, 1000}, ScaleMode::kSmooth), (Rect{0, 125, 1000, 875}));
}

TEST(FrameScaling, AWholeFactorIsTheLargestThatFits) {
  EXPECT_EQ(FrameArea({2560, 1440}, ScaleMode::kWhole), (Rect{480, 120, 2080, 1320}));
  EXPECT_EQ(FrameArea({1599, 1300}, ScaleMode::kWhole), (Rect{399, 350, 1199, 950}));
}

TEST(FrameScaling, AnOutputSmallerThanTheFrameIsFittedInEveryMode) {
  for (ScaleMode mode : kModes) EXPECT_EQ(FrameArea({400, 400}, mode), (Rect{0, 50, 400, 350}));
}

TEST(FrameScaling, AnOutputWithoutSizeGivesAnAreaThatCanBeDividedBy) {
  for (ScaleMode mode : kModes) {
    EXPECT_GE(FrameArea({0, 0}, mode).Width(), 1);
    EXPECT_GE(FrameArea({0, 900}, mode).Height(), 1);
  }
}

TEST(FrameScaling, ASharpFrameIsEnlargedToAtLeastItsPlace) {
  EXPECT_EQ(SharpFactor({0, 0, 800, 600}), 1);
  EXPECT_EQ(SharpFactor({0, 0, 801, 600}), 2);
  EXPECT_EQ(SharpFactor({0, 0, 1440, 1080}), 2);
  EXPECT_EQ(SharpFactor({0, 0, 400, 300}), 1);
}

// Every window pixel on the frame names the frame pixel that is drawn under its middle, and every
// frame pixel of an enlarged frame can be reached.
TEST(FrameScaling, ThePointerNamesThePixelUnderItAtEveryScale) {
  for (int width = 800; width <= 2600; width += 37) {
    Size output{width, width * 3 / 4 + 91};
    for (ScaleMode mode : kModes) {
      Rect area = FrameArea(output, mode);
      int before = -1;
      for (int x = area.left; x < area.right; ++x) {
        int column = FramePoint({x, area.top}, output, output, mode).x;
        double middle = (x + 0.5 - area.left) * kFrameWidth / area.Width();
        ASSERT_LE(column, middle);
        ASSERT_GT(column + 1, middle);
        ASSERT_TRUE(column == before || column == before + 1) << width << " " << x;
        before = column;
      }
      EXPECT_EQ(before, 799);
      EXPECT_EQ(FramePoint({area.left, area.top}, output, output, mode), (Point{0, 0}));
      EXPECT_EQ(FramePoint({area.right - 1, area.bottom - 1}, output, output, mode),
                (Point{799, 599}));
    }
  }
}

TEST(FrameScaling, AtAWholeFactorEachPixelHasAsManyWindowPixels) {
  Size output{2400, 1800};
  for (int x = 0; x < output.width; ++x) {
    ASSERT_EQ(FramePoint({x, 0}, output, output, ScaleMode::kSharp).x, x / 3);
  }
}

TEST(FrameScaling, ThePointerIsClippedToTheFrame) {
  Size output{1920, 1080};
  EXPECT_EQ(FramePoint({0, 540}, output, output, ScaleMode::kSharp), (Point{0, 300}));
  EXPECT_EQ(FramePoint({1919, 1079}, output, output, ScaleMode::kSharp), (Point{799, 599}));
  EXPECT_EQ(FramePoint({-50, -50}, output, output, ScaleMode::kSharp), (Point{0, 0}));
  EXPECT_EQ(FramePoint({5000, 5000}, output, output, ScaleMode::kSharp), (Point{799, 599}));
}

TEST(FrameScaling, WindowUnitsLargerThanPixelsAreTakenIntoAccount) {
  Size window{800, 600};
  Size output{1600, 1200};
  EXPECT_EQ(FramePoint({799, 599}, window, output, ScaleMode::kSharp), (Point{799, 599}));
  EXPECT_EQ(FramePoint({400, 300}, window, output, ScaleMode::kSharp), (Point{400, 300}));
}

TEST(FrameScaling, TheBordersBesideTheFrameAreNotOnIt) {
  Size output{1920, 1080};
  EXPECT_FALSE(IsOverFrame({239, 10}, output, output, ScaleMode::kSharp));
  EXPECT_TRUE(IsOverFrame({240, 10}, output, output, ScaleMode::kSharp));
  EXPECT_TRUE(IsOverFrame({1679, 10}, output, output, ScaleMode::kSharp));
  EXPECT_FALSE(IsOverFrame({1680, 10}, output, output, ScaleMode::kSharp));
}

}  // namespace
}  // namespace quendle
