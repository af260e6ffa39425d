// Every check finds its planted fault, where it stands, and leaves the clean twin alone.
#include <gtest/gtest.h>

#include <set>

#include "toolbelt/VerifyPairs.h"

namespace quendle {
namespace {

std::vector<CheckPair> AllPairs() {
  std::vector<CheckPair> all;
  for (auto pairs : {FilePairs(), PartPairs(), ScriptPairs(), MeaningPairs()}) {
    all.insert(all.end(), pairs.begin(), pairs.end());
  }
  return all;
}

std::string Planted(const Plant& plant) {
  static const VerifyClinic kClean;
  VerifyClinic clinic = kClean;
  plant(clinic);
  return clinic.Found();
}

class VerifyPairs : public ::testing::TestWithParam<CheckPair> {};

TEST_P(VerifyPairs, TheFaultIsFoundWhereItStands) {
  const std::string found = "\n" + Planted(GetParam().fault);
  const std::string wanted = "\n" + GetParam().place + " " + GetParam().code + " ";
  EXPECT_NE(found.find(wanted), std::string::npos) << "wanted " << wanted << " in " << found;
}

TEST_P(VerifyPairs, TheTwinIsLeftAlone) {
  const std::string found = Planted(GetParam().twin);
  EXPECT_EQ(found.find(" " + GetParam().code + " "), std::string::npos) << found;
}

INSTANTIATE_TEST_SUITE_P(Checks, VerifyPairs, ::testing::ValuesIn(AllPairs()),
                         [](const auto& test) {
                           return test.param.code + "_" + std::to_string(test.index);
                         });

// The side list's own rows are tested with it.
TEST(VerifyTable, EveryCheckHasAPair) {
  std::set<std::string> paired{"V002", "V003"};
  for (const CheckPair& pair : AllPairs()) paired.insert(pair.code);
  for (const CheckRow& row : CheckTable()) {
    EXPECT_TRUE(paired.contains(std::string(row.code))) << row.code << " " << row.title;
  }
}

TEST(VerifyTable, CodesAreRisingAndStandAtTheirCheck) {
  std::string_view last;
  for (const CheckRow& row : CheckTable()) {
    EXPECT_LT(last, row.code);
    EXPECT_EQ(&RowOf(row.check), &row);
    EXPECT_EQ(FindCheck(row.code), &row);
    last = row.code;
  }
  EXPECT_EQ(FindCheck("V999"), nullptr);
}

}  // namespace
}  // namespace quendle
