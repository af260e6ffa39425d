#include "subgames/PointSystemObject.h"

#include <gtest/gtest.h>

#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

struct PointSystem : testing::Test {
  PointSystem() {
    bench.PutObject("points", "pointsystem");
    object = CreateGameObject(bench.world, "\\info\\points.txt", 0, bench.top);
  }
  void Send(const std::string& message) { object->Send(message); }
  // "name=points ..." in the order of the list.
  std::string Points() const {
    std::string text;
    for (const auto& entry : dynamic_cast<PointSystemObject&>(*object).Points()) {
      text += entry.value.Name() + "=" + std::to_string(entry.value.Points()) + " ";
    }
    return text;
  }

  SubgameBench bench{"playareasquare", "nothing"};
  ObjectRef object;
};

TEST_F(PointSystem, AClassBeginsWithNoPoints) {
  Send("AddClass_hits");
  EXPECT_EQ(Points(), "hits=0 ");
}

TEST_F(PointSystem, PointsAreAddedAndRemovedByName) {
  Send("addclass_hits");
  Send("addpoints_HITS_5");
  Send("removepoints_hits_7");
  EXPECT_EQ(Points(), "hits=-2 ");
}

TEST_F(PointSystem, SeveralPairsStandInOneMessage) {
  Send("addpoints_a_1_b_2");
  EXPECT_EQ(Points(), "a=1 b=2 ");
}

TEST_F(PointSystem, ANameWithoutAValueChangesNothing) {
  Send("addpoints_a");
  EXPECT_EQ(Points(), "");
}

TEST_F(PointSystem, TheNumberOfPairsIsHalfOfTheLastIndexToEven) {
  Send("addpoints_a_1_b_2_c");
  EXPECT_EQ(Points(), "a=1 b=2 ") << "index 5 gives two pairs, the last word is left over";
  EXPECT_EQ(FatalOf([&] { Send("addpoints_a_5_b"); }),
            "Warning: We received an invalid 'Add Point' message: \"addpoints_a_5_b\" ends where a "
            "value should stand");
  EXPECT_NE(FatalOf([&] { Send("addpoints_a_1_b_2_c_3_d"); }), "no fatal error");
}

TEST_F(PointSystem, RemovingFromAnUnknownNameGivesItThePoints) {
  Send("removepoints_a_5");
  EXPECT_EQ(Points(), "a=5 ");
}

TEST_F(PointSystem, ASecondClassOfOneNameIsFatal) {
  Send("addclass_a");
  EXPECT_EQ(FatalOf([&] { Send("addclass_A"); }), "there are two point class entries named \"A\"");
}

TEST_F(PointSystem, AValueThatIsNoNumberIsFatal) {
  EXPECT_EQ(FatalOf([&] { Send("addpoints_a_many"); }),
            "\"many\" is not a number (points of \"a\")");
}

TEST_F(PointSystem, ADoubledUnderscoreIsAnEmptyWord) {
  EXPECT_EQ(FatalOf([&] { Send("addpoints_a__5"); }), "\"\" is not a number (points of \"a\")");
}

TEST_F(PointSystem, SumsHaveSixteenBits) {
  Send("addpoints_a_32767");
  EXPECT_EQ(FatalOf([&] { Send("addpoints_a_1"); }), "points of \"a\" is out of range for 16 bits");
  EXPECT_NE(FatalOf([&] { Send("addpoints_b_32768"); }), "no fatal error");
}

TEST_F(PointSystem, VerifyingChangesNothing) {
  bool result = true;
  object->HandleMessage("addpoints_a_5", nullptr, true, result);
  EXPECT_TRUE(result);
  EXPECT_EQ(Points(), "");
}

TEST_F(PointSystem, OtherMessagesGoOn) {
  Send("addpointsmore_a_5");
  EXPECT_EQ(bench.top->messages, Lines{"addpointsmore_a_5"});
}

TEST_F(PointSystem, ToolsSeeThePoints) {
  Send("addpoints_hits_5");
  EXPECT_EQ(SubgameBench::Number(*object, "points.hits"), 5);
}

}  // namespace
}  // namespace quendle
