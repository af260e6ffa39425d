// The ball of the brick game: what it touches, and where it goes then.
#include <gtest/gtest.h>

#include "subgames/CellObject_BBall.h"
#include "subgames/CellObject_Blinker.h"
#include "subgames/CellObject_Bobbler.h"
#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

// An object that holds a single point.
class OnePoint : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;
  bool AreWeOnTheObject(std::int16_t px, std::int16_t py) override { return px == x && py == y; }
  void Hold(int px, int py) {
    x = px;
    y = py;
  }
  int x = -1000;
  int y = -1000;
};

struct Ball : testing::Test {
  Ball() { bench.TurnOnGame(); }
  CellObject_BBall& TheBall() { return bench.CellAs<CellObject_BBall>("shot1"); }
  void Put(GameObjectInterface& object, int x, int y) {
    object.Setxpos(static_cast<std::int16_t>(x));
    object.Setypos(static_cast<std::int16_t>(y));
  }
  std::string Speed() {
    return std::to_string(TheBall().GetHDisposition()) + "," +
           std::to_string(TheBall().GetVDisposition());
  }
  // "H,V" after a hit on a brick while the ball is dx right of it and dy above it.
  std::string OffABrick(int dx, int dy) {
    auto& brick = bench.Cell("cell1");
    Put(brick, 300, 150);
    Put(TheBall(), 300 + dx, 150 - dy);
    TheBall().ChangeDirection(brick, 1);
    return Speed();
  }

  BlinkerBench bench;
};

TEST_F(Ball, TouchesWithEachOfItsCornersAlone) {
  OnePoint other(bench.world);
  Put(TheBall(), 300, 200);
  for (auto [x, y] : {std::pair{300, 200}, {316, 200}, {300, 216}, {316, 216}}) {
    other.Hold(x, y);
    EXPECT_TRUE(TheBall().DidWeHitCell(other)) << x << "," << y;
  }
  for (auto [x, y] : {std::pair{308, 208}, {308, 200}, {300, 208}, {317, 216}}) {
    other.Hold(x, y);
    EXPECT_FALSE(TheBall().DidWeHitCell(other)) << x << "," << y;
  }
}

TEST_F(Ball, IsTouchedByEachCornerOfTheOtherAlone) {
  OnePoint other(bench.world);
  other.Setwidth(100);
  other.Setheight(60);
  Put(TheBall(), 300, 200);
  for (auto [x, y] : {std::pair{308, 208}, {208, 208}, {308, 148}, {208, 148}}) {
    Put(other, x, y);
    EXPECT_TRUE(TheBall().DidWeHitCell(other)) << x << "," << y;
  }
  Put(other, 258, 178);
  EXPECT_FALSE(TheBall().DidWeHitCell(other)) << "the ball in its middle";
}

TEST_F(Ball, TurnsBackFromABrickUpTo45DegreesAndFrom315) {
  EXPECT_EQ(OffABrick(100, 99), "-10,10") << "44.7 degrees";
  EXPECT_EQ(OffABrick(99, 100), "10,10") << "45.3 degrees";
  EXPECT_EQ(OffABrick(99, -100), "10,-10") << "314.7 degrees";
  EXPECT_EQ(OffABrick(100, -99), "-10,-10") << "315.3 degrees";
}

TEST_F(Ball, TurnsBackFromABrickFrom135DegreesTo225) {
  EXPECT_EQ(OffABrick(-99, 100), "10,-10") << "134.7 degrees";
  EXPECT_EQ(OffABrick(-100, 99), "-10,-10") << "135.3 degrees";
  EXPECT_EQ(OffABrick(-100, -99), "-10,10") << "224.7 degrees";
  EXPECT_EQ(OffABrick(-99, -100), "10,10") << "225.3 degrees";
}

TEST_F(Ball, ThatIsLostComesBackWithItsFirstSpeeds) {
  Put(TheBall(), 500, 590);
  TheBall().SetHDisposition(-7);
  TheBall().SetVDisposition(3);
  TheBall().Update();
  ASSERT_EQ(Speed(), "-7,-10");
  TheBall().ResetBall();
  EXPECT_EQ(Speed(), "10,10");
  EXPECT_EQ(TheBall().xpos(), 300);
  EXPECT_EQ(TheBall().ypos(), 300);
  EXPECT_FALSE(TheBall().DidWeHitTheGutter());
}

TEST_F(Ball, IsTurnedByTheBricksFirstAndByThePaddleLast) {
  bench.area->Send("startgame");
  bench.Mouse(400, 10, "handmouseover");
  bench.GameTick();
  bench.HideAllBricks();
  auto& brick = bench.Cell("cell1");
  brick.SetVisible(true);
  Put(brick, 420, 515);
  Put(TheBall(), 430, 540);
  bench.GameTick();
  EXPECT_FALSE(brick.Visible());
  EXPECT_EQ(Speed(), "10,-3") << "18 degrees above the paddle; 292 seen from the brick";
}

TEST(Bobbler, TouchesWithEachOfItsCornersAlone) {
  BobblerBench bench;
  bench.TurnOnGame();
  auto& cell = bench.CellAs<CellObject_Bobbler>("cell1");
  OnePoint other(bench.world);
  cell.Setxpos(300);
  cell.Setypos(200);
  for (auto [x, y] : {std::pair{300, 200}, {320, 200}, {300, 220}, {320, 220}}) {
    other.Hold(x, y);
    EXPECT_TRUE(cell.DidWeHitCell(other)) << x << "," << y;
  }
  other.Hold(310, 210);
  EXPECT_FALSE(cell.DidWeHitCell(other));
}

}  // namespace
}  // namespace quendle
