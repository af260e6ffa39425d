#include "base/CoordObject.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

TEST(CoordObject, BeginsAtTheOriginAndTakesWholeNumbersOfBothSigns) {
  CoordObject point;
  EXPECT_EQ(point.X, 0);
  EXPECT_EQ(point.Y, 0);
  point.SetParams(-32768, 32767);
  EXPECT_EQ(point.X, -32768);
  EXPECT_EQ(point.Y, 32767);
}

}  // namespace
}  // namespace quendle
