#include "diagnostics/StateSnapshot.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

StateSnapshot Snapshot() {
  return {{{"(game)", {{"cursor", "hand"}, {"screen", "hall"}}},
           {"hall", {{"x", "0"}}},
           {"hall/dog", {{"state", "default"}, {"x", "5"}}}}};
}

std::string Difference(const StateSnapshot& expected, const StateSnapshot& found) {
  const auto difference = FirstDifference(expected, found);
  if (!difference) return "(none)";
  return difference->object + "|" + difference->field + "|" + difference->expected.value_or("-") +
         "|" + difference->found.value_or("-");
}

TEST(StateSnapshot, EqualSnapshotsDoNotDiffer) {
  EXPECT_EQ(Difference(Snapshot(), Snapshot()), "(none)");
  EXPECT_EQ(HashOfSnapshot(Snapshot()), HashOfSnapshot(Snapshot()));
}

TEST(StateSnapshot, AnotherValueIsNamedWithItsObjectAndField) {
  StateSnapshot found = Snapshot();
  found.objects["hall/dog"]["state"] = "better1";
  EXPECT_EQ(Difference(Snapshot(), found), "hall/dog|state|default|better1");
  EXPECT_NE(HashOfSnapshot(Snapshot()), HashOfSnapshot(found));
}

TEST(StateSnapshot, TheGameComesBeforeItsObjects) {
  StateSnapshot found = Snapshot();
  found.objects["hall"]["x"] = "1";
  found.objects["(game)"]["cursor"] = "soap";
  EXPECT_EQ(Difference(Snapshot(), found), "(game)|cursor|hand|soap");
}

TEST(StateSnapshot, OfTheGamesFieldsTheScreenInViewComesFirst) {
  StateSnapshot found = Snapshot();
  found.objects["(game)"] = {{"cursor", "soap"}, {"screen", "room"}};
  EXPECT_EQ(Difference(Snapshot(), found), "(game)|screen|hall|room");
}

TEST(StateSnapshot, AnObjectThatOneSideLacksIsADifference) {
  StateSnapshot found = Snapshot();
  found.objects.erase("hall/dog");
  EXPECT_EQ(Difference(Snapshot(), found), "hall/dog||there|-");
  EXPECT_EQ(Difference(found, Snapshot()), "hall/dog||-|there");
}

TEST(StateSnapshot, AFieldThatOneSideLacksIsADifference) {
  StateSnapshot found = Snapshot();
  found.objects["hall"].erase("x");
  EXPECT_EQ(Difference(Snapshot(), found), "hall|x|0|-");
}

TEST(StateSnapshot, TheHashTellsAFieldFromAnObject) {
  StateSnapshot found = Snapshot();
  found.objects["hall"]["y"] = "";
  EXPECT_NE(HashOfSnapshot(Snapshot()), HashOfSnapshot(found));
}

}  // namespace
}  // namespace quendle
