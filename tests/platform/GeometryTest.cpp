#include "platform/Geometry.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

TEST(Rect, HoldsItsLeftAndTopEdgesAndNotTheOthers) {
  Rect rect{10, 20, 30, 40};
  EXPECT_TRUE(rect.Holds({10, 20}));
  EXPECT_TRUE(rect.Holds({29, 39}));
  EXPECT_FALSE(rect.Holds({30, 39}));
  EXPECT_FALSE(rect.Holds({29, 40}));
  EXPECT_FALSE(rect.Holds({9, 20}));
  EXPECT_FALSE(rect.Holds({10, 19}));
  EXPECT_EQ(rect.Width(), 20);
  EXPECT_EQ(rect.Height(), 20);
}

TEST(PackColor, PutsRedIntoTheLowByte) {
  EXPECT_EQ(PackColor(0x11, 0x22, 0x33), 0x332211);
  EXPECT_EQ(PackColor(200, 200, 200), 0xC8C8C8);
  EXPECT_EQ(PackColor(255, 255, 255), 0xFFFFFF);
}

}  // namespace
}  // namespace quendle
