#include "media/SplineState.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "base/TextStream.h"

namespace quendle {
namespace {

using Points = std::vector<std::pair<double, double>>;

SplineState Path(const std::string& loop, const std::string& speed, const std::string& xs,
                 const std::string& ys) {
  TextReader reader(
      "x\r\ny\r\n" + loop + "\r\nroad\r\n" + speed + "\r\n" + xs + "\r\n" + ys + "\r\n\r\n\r\n",
      "Info\\path.txt");
  SplineState spline;
  spline.ProcessDirective(reader);
  EXPECT_TRUE(reader.AtEndOfStream());
  return spline;
}

Points Steps(SplineState& spline, int count) {
  Points points;
  for (int i = 0; i < count; ++i) {
    const CoordObject at = spline.GetNextCoords();
    points.emplace_back(at.X, at.Y);
  }
  return points;
}

TEST(SplineState, ReadsTheNineLinesOfItsRecord) {
  SplineState spline = Path("Loop", "3", "1 2", " 5  6 ");
  EXPECT_TRUE(spline.Loops());
  EXPECT_EQ(spline.Name(), "road");
  EXPECT_EQ(spline.Speed(), 3);
  EXPECT_EQ(spline.XList(), (std::vector<std::string>{"1", "2"}));
  EXPECT_EQ(spline.YList(), (std::vector<std::string>{"5", "6"}));
  EXPECT_FALSE(spline.IsSplineDone());
  EXPECT_FALSE(Path("loops", "3", "1 2", "5 6").Loops());
}

TEST(SplineState, EightLinesAreFatalAndNineWithEmptyEndsAreNot) {
  TextReader reader("\n\nloop\nroad\n5\n0 1\n0 1\n\n", "Info\\path.txt");
  SplineState spline;
  try {
    spline.ProcessDirective(reader);
    FAIL() << "the ninth line was not missed";
  } catch (const FatalError& error) {
    EXPECT_STREQ(error.what(),
                 "Info\\path.txt:9: the file ends where the last line of a path should stand");
  }
}

TEST(SplineState, ARisingHorizontalSegmentMovesOnXAlone) {
  SplineState spline = Path("no", "4", "0 10", "7 7");
  EXPECT_EQ(Steps(spline, 4), (Points{{4, 7}, {8, 7}, {12, 7}, {12, 7}}));
  EXPECT_TRUE(spline.IsSplineDone());
}

TEST(SplineState, AFallingHorizontalSegmentEndsAtOrBelowItsTarget) {
  SplineState spline = Path("no", "5", "20 10", "7 7");
  EXPECT_EQ(Steps(spline, 1), (Points{{15, 7}}));
  EXPECT_FALSE(spline.IsSplineDone());
  EXPECT_EQ(Steps(spline, 1), (Points{{10, 7}}));
  EXPECT_TRUE(spline.IsSplineDone());
}

TEST(SplineState, AVerticalSegmentMovesBySpeedOnYAlone) {
  SplineState down = Path("no", "5", "3 3", "0 10");
  EXPECT_EQ(Steps(down, 2), (Points{{3, 5}, {3, 10}}));
  EXPECT_TRUE(down.IsSplineDone());
  SplineState up = Path("no", "6", "3 3", "10 0");
  EXPECT_EQ(Steps(up, 2), (Points{{3, 4}, {3, -2}}));
  EXPECT_TRUE(up.IsSplineDone());
}

TEST(SplineState, ASlopeMovesYByItsShare) {
  SplineState spline = Path("no", "2", "0 8", "0 4");
  EXPECT_EQ(Steps(spline, 4), (Points{{2, 1}, {4, 2}, {6, 3}, {8, 4}}));
  EXPECT_TRUE(spline.IsSplineDone());
}

TEST(SplineState, TheSlopeIsTakenAgainstTheRoundedWidthOfItsSegment) {
  SplineState wide = Path("no", "10", "0 10.4", "0 100");
  EXPECT_EQ(Steps(wide, 1), (Points{{10, 100}})) << "10.4 counts as 10";
  SplineState tie = Path("no", "10", "0 11.5", "0 120");
  EXPECT_EQ(Steps(tie, 1), (Points{{10, 100}})) << "11.5 counts as 12";
  SplineState narrow = Path("no", "5", "0 0.5", "0 30");
  EXPECT_EQ(Steps(narrow, 1), (Points{{0, 5}})) << "0.5 counts as none: upright";
}

TEST(SplineState, PositionsAreRoundedHalfToEvenAndTheExactOnesGoOn) {
  SplineState spline = Path("no", "1", "0 8", "0 4");
  EXPECT_EQ(Steps(spline, 4), (Points{{1, 0}, {2, 1}, {3, 2}, {4, 2}}));
}

TEST(SplineState, BothAxesFallingMoveAlongTheSegment) {
  // dy / k is positive, and the sign of y turns it: y falls as x does.
  SplineState spline = Path("no", "2", "8 0", "4 0");
  EXPECT_EQ(Steps(spline, 4), (Points{{6, 3}, {4, 2}, {2, 1}, {0, 0}}));
  EXPECT_TRUE(spline.IsSplineDone());
}

TEST(SplineState, WhereOneAxisFallsAndTheOtherRisesYMovesAgainstTheSegment) {
  SplineState left = Path("no", "2", "8 0", "0 4");
  EXPECT_EQ(Steps(left, 2), (Points{{6, -1}, {4, -2}}));
  SplineState right = Path("no", "2", "0 8", "4 0");
  EXPECT_EQ(Steps(right, 2), (Points{{2, 5}, {4, 6}}));
}

TEST(SplineState, FurtherSegmentsFollow) {
  SplineState spline = Path("no", "5", "0 10 10", "0 0 10");
  EXPECT_EQ(Steps(spline, 4), (Points{{5, 0}, {10, 0}, {10, 5}, {10, 10}}));
  EXPECT_TRUE(spline.IsSplineDone());
}

TEST(SplineState, ALoopJumpsBackToItsFirstPointInOneStep) {
  SplineState spline = Path("loop", "5", "0 10", "3 3");
  EXPECT_EQ(Steps(spline, 5), (Points{{5, 3}, {0, 3}, {5, 3}, {0, 3}, {5, 3}}));
  EXPECT_FALSE(spline.IsSplineDone());
}

TEST(SplineState, ADonePathStaysWhereItIsUntilItIsReadAgain) {
  SplineState spline = Path("no", "20", "0 10", "0 0");
  EXPECT_EQ(Steps(spline, 3), (Points{{20, 0}, {20, 0}, {20, 0}}));
  TextReader again("\n\nno\nroad\n5\n0 10\n0 0\n\n\n", "path.txt");
  spline.ProcessDirective(again);
  EXPECT_FALSE(spline.IsSplineDone());
  EXPECT_EQ(Steps(spline, 1), (Points{{5, 0}}));
}

TEST(SplineState, SpeedZeroNeverArrives) {
  SplineState spline = Path("no", "0", "0 10", "0 0");
  EXPECT_EQ(Steps(spline, 50), Points(50, {0, 0}));
  EXPECT_FALSE(spline.IsSplineDone());
}

TEST(SplineState, APathOfOnePointIsFatalAtItsFirstStep) {
  SplineState spline = Path("no", "5", "4", "4");
  try {
    spline.GetNextCoords();
    FAIL() << "the second point was not missed";
  } catch (const FatalError& error) {
    EXPECT_STREQ(error.what(),
                 "Info\\path.txt:7: a path goes past its last point: its list of x values has 1, "
                 "and a path needs two points or more");
  }
}

TEST(SplineState, AListShorterThanTheOtherIsFatalAtTheFirstLookBeyondItsEnd) {
  SplineState spline = Path("no", "5", "0 10 20", "0 0");
  EXPECT_EQ(Steps(spline, 2), (Points{{5, 0}, {10, 0}}));
  EXPECT_THROW(spline.GetNextCoords(), FatalError);
}

TEST(SplineState, EmptyListsAreFatalWhenTheyAreRead) {
  TextReader reader("\n\nno\nroad\n5\n\n\n\n\n", "path.txt");
  SplineState spline;
  EXPECT_THROW(spline.ProcessDirective(reader), FatalError);
}

TEST(SplineState, TextThatIsNoNumberIsFatalWhenItIsReached) {
  SplineState spline = Path("no", "5", "0 5 ten", "0 0 0");
  EXPECT_EQ(Steps(spline, 1), (Points{{5, 0}}));
  try {
    spline.GetNextCoords();
    FAIL() << "the text was taken for a number";
  } catch (const FatalError& error) {
    EXPECT_STREQ(error.what(), "Info\\path.txt:7: \"ten\" is not a number (x value of a path)");
  }
}

TEST(SplineState, APositionBeyond16BitsIsFatal) {
  SplineState spline = Path("no", "32000", "0 0", "1 32767");
  EXPECT_EQ(Steps(spline, 1), (Points{{0, 32001}}));
  EXPECT_THROW(spline.GetNextCoords(), FatalError);
}

}  // namespace
}  // namespace quendle
