#include "backends/raster/PolygonSpans.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace quendle {
namespace {

constexpr Rect kBounds{0, 0, 40, 40};

// How often the closed outline winds around a point: edges right of it count, each with its upper
// end and without its lower one. Integers only.
int Winding(const std::vector<Point>& corners, Point at) {
  int winding = 0;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const Point a = corners[i];
    const Point b = corners[(i + 1) % corners.size()];
    const std::int64_t side =
        std::int64_t{b.x - a.x} * (at.y - a.y) - std::int64_t{at.x - a.x} * (b.y - a.y);
    // A point on an edge lies right of it: left edges belong to the region.
    if (a.y <= at.y && at.y < b.y && side <= 0) ++winding;
    if (b.y <= at.y && at.y < a.y && side >= 0) --winding;
  }
  return winding;
}

void ExpectWindingFill(const std::vector<Point>& corners, const Rect& bounds = kBounds) {
  std::vector<std::string> filled(60, std::string(60, '.'));
  for (const PolygonSpan& span : PolygonSpans(corners, bounds)) {
    for (int x = span.left; x < span.right; ++x) {
      char& pixel = filled[static_cast<std::size_t>(span.y)][static_cast<std::size_t>(x)];
      EXPECT_EQ(pixel, '.') << "filled twice: " << x << "," << span.y;
      pixel = '#';
    }
  }
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 60; ++x) {
      const bool inside = bounds.Holds({x, y}) && Winding(corners, {x, y}) != 0;
      ASSERT_EQ(filled[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)],
                inside ? '#' : '.')
          << x << "," << y;
    }
  }
}

TEST(PolygonSpans, ARectangleHasItsLeftAndTopEdgesAndNotTheOthers) {
  const std::vector<Point> corners = {{2, 1}, {5, 1}, {5, 3}, {2, 3}};
  EXPECT_EQ(PolygonSpans(corners, kBounds), (std::vector<PolygonSpan>{{1, 2, 5}, {2, 2, 5}}));
}

TEST(PolygonSpans, TheDirectionOfTheOutlineMakesNoDifference) {
  const std::vector<Point> forth = {{3, 2}, {30, 9}, {21, 33}, {6, 27}};
  const std::vector<Point> back(forth.rbegin(), forth.rend());
  EXPECT_EQ(PolygonSpans(forth, kBounds), PolygonSpans(back, kBounds));
  ExpectWindingFill(forth);
}

TEST(PolygonSpans, WhatTheOutlineWindsAroundTwiceIsInside) {
  const std::vector<Point> star = {{20, 0}, {32, 38}, {1, 14}, {39, 14}, {8, 38}};
  ExpectWindingFill(star);
  bool middle = false;
  for (const PolygonSpan& span : PolygonSpans(star, kBounds)) {
    middle = middle || (span.y == 20 && span.left <= 20 && span.right > 20);
  }
  EXPECT_TRUE(middle) << "the middle of a star is no hole";
}

TEST(PolygonSpans, OutlinesOfAnyShapeAreFilledExactly) {
  unsigned random = 7;
  const auto next = [&random] {
    random = random * 1103515245 + 12345;
    return static_cast<int>(random >> 16) % 60 - 10;
  };
  for (int round = 0; round < 50; ++round) {
    std::vector<Point> corners;
    for (int i = 0; i < 3 + round % 9; ++i) {
      const int x = next();
      corners.push_back({x, next()});
    }
    ExpectWindingFill(corners);
  }
}

TEST(PolygonSpans, AnOutlineWithoutAnInsideFillsNothing) {
  EXPECT_TRUE(PolygonSpans({}, kBounds).empty());
  EXPECT_TRUE(PolygonSpans(std::vector<Point>{{3, 3}}, kBounds).empty());
  EXPECT_TRUE(PolygonSpans(std::vector<Point>{{3, 3}, {9, 20}}, kBounds).empty());
  EXPECT_TRUE(PolygonSpans(std::vector<Point>{{3, 3}, {9, 9}, {20, 20}}, kBounds).empty());
}

TEST(PolygonSpans, CornersAtTheEndsOf16BitsAreExact) {
  const std::vector<Point> corners = {{-32768, -32768}, {32767, -32768}, {20, 32767}};
  ExpectWindingFill(corners, {0, 0, 50, 50});
}

}  // namespace
}  // namespace quendle
