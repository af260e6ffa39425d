#include "media/PlacedFrame.h"

#include <gtest/gtest.h>

#include <limits>

namespace quendle {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

TEST(ResolveFramePosition, ZeroOrMoreIsThePlaceItself) {
  EXPECT_EQ(ResolveFramePosition(50, 0), 0);
  EXPECT_EQ(ResolveFramePosition(50, 120), 120);
}

TEST(ResolveFramePosition, MinusOneFollowsTheObject) {
  EXPECT_EQ(ResolveFramePosition(50, -1), 50);
  EXPECT_EQ(ResolveFramePosition(-7, -1), -7);
}

TEST(ResolveFramePosition, BelowMinusOneIsAnOffset) {
  EXPECT_EQ(ResolveFramePosition(50, -2), 52);
  EXPECT_EQ(ResolveFramePosition(50, -100), 150);
}

TEST(ResolveFramePosition, AnyCodeLeavesRoomForAParentsPosition) {
  EXPECT_EQ(ResolveFramePosition(32767, kLeast), 1 << 30);
  EXPECT_EQ(ResolveFramePosition(-32768, kMost), 1 << 30);
}

TEST(ClipFrame, AFrameInsideStaysWhole) {
  const ClippedFrame cut = ClipFrame({10, 20, 30, 40, 5, 6});
  EXPECT_EQ(cut.to, (Rect{10, 20, 40, 60}));
  EXPECT_EQ(cut.from, (Rect{5, 6, 35, 46}));
}

TEST(ClipFrame, EachEdgeCutsTheSourceToo) {
  const ClippedFrame low = ClipFrame({-3, -4, 30, 40, 5, 6});
  EXPECT_EQ(low.to, (Rect{0, 0, 27, 36}));
  EXPECT_EQ(low.from, (Rect{8, 10, 35, 46}));
  const ClippedFrame high = ClipFrame({790, 580, 30, 40, 5, 6});
  EXPECT_EQ(high.to, (Rect{790, 580, 800, 600}));
  EXPECT_EQ(high.from, (Rect{5, 6, 15, 26}));
  const ClippedFrame both = ClipFrame({-10, -10, 900, 900, 0, 0});
  EXPECT_EQ(both.to, (Rect{0, 0, 800, 600}));
  EXPECT_EQ(both.from, (Rect{10, 10, 810, 610}));
}

TEST(ClipFrame, AFrameWhollyLeftHasANegativeRightEdge) {
  const ClippedFrame cut = ClipFrame({-50, 0, 30, 10, 0, 0});
  EXPECT_EQ(cut.to, (Rect{0, 0, -20, 10}));
  EXPECT_EQ(cut.from, (Rect{50, 0, 30, 10}));
}

TEST(ClipFrame, AnyNumbersAreCutWithoutOverflow) {
  const ClippedFrame cut = ClipFrame({-(1 << 30), 1 << 30, kMost, kMost, kMost, kLeast});
  EXPECT_EQ(cut.to.left, 0);
  EXPECT_EQ(cut.to.right, kFrameWidth);
  EXPECT_EQ(cut.to.bottom, kFrameHeight);
  EXPECT_EQ(cut.from.left, kMost);
  EXPECT_EQ(cut.from.bottom, kLeast);
}

}  // namespace
}  // namespace quendle
