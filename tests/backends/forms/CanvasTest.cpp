#include "backends/forms/Canvas.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

constexpr Rgba kRed = Hex(0xFF0000);

std::uint32_t PixelAt(const Canvas& canvas, int x, int y) {
  return canvas.Pixels()[static_cast<std::size_t>(y) * canvas.PixelSize().width + x];
}

TEST(Canvas, AShapeOnWholePixelsCoversExactlyThem) {
  Canvas canvas({10, 10}, 1);
  canvas.Fill(Path::Polygon({{2, 3}, {5, 3}, {5, 7}, {2, 7}}), kRed);
  for (int y = 0; y < 10; ++y) {
    for (int x = 0; x < 10; ++x) {
      bool inside = x >= 2 && x < 5 && y >= 3 && y < 7;
      EXPECT_EQ(PixelAt(canvas, x, y), inside ? 0xFFFF0000u : 0xFFFFFFFFu) << x << "," << y;
    }
  }
}

TEST(Canvas, AHalfCoveredPixelTakesHalfTheColour) {
  Canvas canvas({4, 4}, 1);
  canvas.Fill(Path::Polygon({{1.5, 0}, {3, 0}, {3, 4}, {1.5, 4}}), kRed);
  EXPECT_NEAR(canvas.At(1, 1).g, 127, 2);
  EXPECT_EQ(canvas.At(2, 1), kRed);
}

TEST(Canvas, TheScaleEnlargesShapes) {
  Canvas canvas({20, 20}, 2);
  canvas.Fill(Path::Polygon({{2, 2}, {4, 2}, {4, 4}, {2, 4}}), kRed);
  EXPECT_EQ(PixelAt(canvas, 4, 4), 0xFFFF0000u);
  EXPECT_EQ(PixelAt(canvas, 7, 7), 0xFFFF0000u);
  EXPECT_EQ(PixelAt(canvas, 3, 4), 0xFFFFFFFFu);
  EXPECT_EQ(PixelAt(canvas, 8, 7), 0xFFFFFFFFu);
}

TEST(Canvas, OverlappingPartsOfAStrokeCoverOnce) {
  Canvas canvas({20, 20}, 1);
  canvas.Stroke(Path().MoveTo(4, 10).LineTo(16, 10).LineTo(4, 10), 4, Hex(0xFF0000, 128));
  EXPECT_NEAR(canvas.At(10, 10).g, 127, 2);
}

TEST(Canvas, ShapesMayLeaveThePicture) {
  Canvas canvas({6, 6}, 1);
  canvas.Fill(Path::Ellipse({0, 0}, 100, 100), kRed);
  canvas.Stroke(Path().MoveTo(-50, -50).LineTo(900, 900), 3, kRed);
  EXPECT_EQ(canvas.At(5, 5), kRed);
}

TEST(Canvas, AShadeGoesFromTheUpperToTheLowerColour) {
  Canvas canvas({1, 100}, 1);
  canvas.FillShaded(Path::Polygon({{0, 0}, {1, 0}, {1, 100}, {0, 100}}), Hex(0x000000),
                    Hex(0xFFFFFF), 0, 100);
  EXPECT_LT(canvas.At(0, 0).r, 5);
  EXPECT_NEAR(canvas.At(0, 50).r, 128, 3);
  EXPECT_GT(canvas.At(0, 99).r, 250);
}

}  // namespace
}  // namespace quendle
