#include <vector>

#include "personalize/FaceFilter.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

TEST(FaceFilter, FloorIsHalfBelowRoundedToEven) {
  EXPECT_EQ(face::HalfBelowToEven(1.0), 0);
  EXPECT_EQ(face::HalfBelowToEven(2.0), 2);
  EXPECT_EQ(face::HalfBelowToEven(3.0), 2);
  EXPECT_EQ(face::HalfBelowToEven(0.0), 0);
  EXPECT_EQ(face::HalfBelowToEven(0.4), 0);
  EXPECT_EQ(face::HalfBelowToEven(1.7), 1);
  EXPECT_EQ(face::HalfBelowToEven(-1.0), -2);
}

TEST(FaceFilter, CeilingIsHalfAboveRoundedToEven) {
  EXPECT_EQ(face::HalfAboveToEven(1.0), 2);
  EXPECT_EQ(face::HalfAboveToEven(2.0), 2);
  EXPECT_EQ(face::HalfAboveToEven(3.0), 4);
  EXPECT_EQ(face::HalfAboveToEven(0.2), 1);
}

TEST(FaceFilter, RedIsInTheLowByte) {
  EXPECT_EQ(face::ExtractR(0x030201), 1);
  EXPECT_EQ(face::ExtractG(0x030201), 2);
  EXPECT_EQ(face::ExtractB(0x030201), 3);
}

TEST(FaceFilter, BlendColorMixesEachChannelAndRoundsToEven) {
  const Color one = PackColor(10, 0, 255);
  const Color two = PackColor(20, 255, 0);
  EXPECT_EQ(face::BlendColor(one, two, 255), one);
  EXPECT_EQ(face::BlendColor(one, two, 0), two);
  EXPECT_EQ(face::BlendColor(one, two, 51), PackColor(18, 204, 51));
  // 255 * 1 / 255 each: no rest is lost between the two parts.
  EXPECT_EQ(face::BlendColor(PackColor(255, 255, 255), PackColor(255, 255, 255), 77),
            PackColor(255, 255, 255));
}

TEST(FaceFilter, WithoutShrinkingEachPixelIsItself) {
  const auto read = [](Point at) { return PackColor(at.x, at.y, at.x + at.y); };
  for (int x = 0; x < 32; ++x) {
    for (int y = 0; y < 32; ++y) {
      EXPECT_EQ(face::ResizedPixel(read, {32, 32}, {32, 32}, {x, y}), read({x, y}))
          << x << "," << y;
    }
  }
}

TEST(FaceFilter, EachRowIsRoundedBeforeTheTwoAreMixed) {
  // Halfway between 0 and 3 is 1.5, which gives 2; halfway between 0 and 1 is 0.5, which gives 0;
  // halfway between those is 1. Rounded once at the end, the mean of 0, 3, 0 and 1 is 1 as well,
  // but of 0, 1, 0 and 1 it is 0.5, and of 1, 2, 1 and 2 it is 1.5.
  const auto value = [](int c00, int c10, int c01, int c11) {
    const int values[2][2] = {{c00, c10}, {c01, c11}};
    const auto read = [&](Point at) {
      return at.x > 1 || at.y > 1 ? kInvalidColor : PackColor(values[at.y][at.x], 0, 0);
    };
    // 2 to 4 pixels: the second one lies halfway.
    return face::ResizedPixel(read, {2, 2}, {4, 4}, {1, 1});
  };
  EXPECT_EQ(value(0, 3, 0, 1), 1);
  EXPECT_EQ(value(0, 1, 3, 0), 1);  // 0 and 2
  EXPECT_EQ(value(0, 1, 0, 1), 0);
  EXPECT_EQ(value(1, 2, 1, 2), 2);
  EXPECT_EQ(value(0, 5, 1, 2), 2);  // 2 and 2; the mean of all four is 2
  EXPECT_EQ(value(0, 1, 1, 2), 1);  // 0 and 2
  EXPECT_EQ(value(2, 3, 0, 1), 1);  // 2 and 0; once at the end it would be 1.5, hence 2
}

TEST(FaceFilter, OutsideOfTheBitmapIsBlack) {
  const auto nothing = [](Point) { return kInvalidColor; };
  EXPECT_EQ(face::ResizedPixel(nothing, {0, 0}, {32, 32}, {5, 5}), 0);
}

TEST(FaceFilter, TheLastPixelHasNoNeighbourBehindIt) {
  std::vector<Point> asked;
  const auto read = [&](Point at) {
    asked.push_back(at);
    return Color{0};
  };
  face::ResizedPixel(read, {3, 3}, {32, 32}, {31, 31});
  for (const Point& at : asked) EXPECT_TRUE(at.x <= 2 && at.y <= 2);
}

}  // namespace
}  // namespace quendle
