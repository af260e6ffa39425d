#include <vector>

#include "platform/Faults.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

TEST(Faults, WithoutAPlanNothingFails) {
  Faults faults;
  EXPECT_FALSE(faults.Fails("write"));
  EXPECT_EQ(faults.Next("Blt"), Faults::Kind::kNone);
}

TEST(Faults, AnOperationFailsSoOftenAfterSoManyGoodCalls) {
  Faults faults;
  faults.Plan("write", 2, 2, false);
  std::vector<bool> failed;
  for (int i = 0; i < 6; ++i) failed.push_back(faults.Fails("write"));
  EXPECT_EQ(failed, (std::vector<bool>{false, false, true, true, false, false}));
}

TEST(Faults, OtherOperationsAreNotTouched) {
  Faults faults;
  faults.Plan("write", 0, 0, false);
  EXPECT_FALSE(faults.Fails("writepart"));
  EXPECT_FALSE(faults.Fails("open"));
  EXPECT_TRUE(faults.Fails("write"));
}

TEST(Faults, NoCountMeansForEver) {
  Faults faults;
  faults.Plan("write", 1, 0, false);
  EXPECT_FALSE(faults.Fails("write"));
  for (int i = 0; i < 1000; ++i) ASSERT_TRUE(faults.Fails("write"));
}

TEST(Faults, ALostSurfaceIsTold) {
  Faults faults;
  faults.Plan("Blt", 0, 1, true);
  EXPECT_EQ(faults.Next("Blt"), Faults::Kind::kLost);
  EXPECT_EQ(faults.Next("Blt"), Faults::Kind::kNone);
}

TEST(Faults, AnOperationThatNobodyAsksAboutCannotBePlanned) {
  Faults faults;
  EXPECT_THROW(faults.Plan("writ", 0, 0, false), std::invalid_argument);
  for (std::string_view operation : kOperationsThatCanFail) faults.Plan(operation, 0, 1, false);
}

TEST(Faults, ANewPlanTakesThePlaceOfTheOldOne) {
  Faults faults;
  faults.Plan("write", 0, 0, false);
  faults.Plan("write", 1, 1, false);
  EXPECT_FALSE(faults.Fails("write"));
  EXPECT_TRUE(faults.Fails("write"));
  EXPECT_FALSE(faults.Fails("write"));
}

}  // namespace
}  // namespace quendle
