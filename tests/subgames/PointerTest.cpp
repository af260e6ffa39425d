// What the pointer does in a play area, and what it doesn't.
#include <gtest/gtest.h>

#include "subgames/CellPlayArea.h"
#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

struct ShooterPointer : testing::Test {
  // A tick in which no enemy fires.
  void QuietTick() {
    bench.NoFire(2);
    bench.GameTick();
  }
  GameObjectInterface& Player() { return bench.Cell("cell111"); }
  long Goal(const std::string& name) { return bench.Number(bench.Cell(name), "XGoal"); }

  ShooterBench bench;
};

struct BlinkerPointer : testing::Test {
  GameObjectInterface& Paddle() { return bench.Cell("paddle1"); }

  BlinkerBench bench;
};

// The area's own script tells what it sees; nothing of it may come while no game runs.
template <class Bench>
void ExpectThePointerOnlyInAGame(const std::string& type, const std::string& game_path) {
  Bench bench;
  bench.PutObject("area", type, {}, "begin\nif action = *\nmtp seen\nendif\nend\n", game_path);
  const auto seen = [&bench] {
    bench.top->messages.clear();
    bench.Click(799, 599);
    bench.Mouse(799, 599, "handmouseover");
    return bench.top->messages;
  };
  bench.TurnOnGame();
  EXPECT_EQ(seen(), Lines{}) << type << " before its start";
  bench.area->Send("startgame");
  EXPECT_EQ(seen(), (Lines{"seen", "seen"})) << type << " in its game";
  bench.area->Send("stopgame");
  EXPECT_EQ(seen(), Lines{}) << type << " after its stop";
}

TEST(PointerOfAStoppedGame, ReachesNotEvenTheAreasOwnScript) {
  ExpectThePointerOnlyInAGame<SquareBench>("playareasquare", "\\info\\board.txt");
  ExpectThePointerOnlyInAGame<ShooterBench>("playareashooter", "\\info\\header.txt");
  ExpectThePointerOnlyInAGame<BlinkerBench>("playareablinker", "\\info\\header.txt");
  ExpectThePointerOnlyInAGame<BobblerBench>("playareabobbler", "\\info\\header.txt");
}

TEST_F(ShooterPointer, MovesThePlayerAtTheTickOnly) {
  bench.StartGame();
  QuietTick();
  ASSERT_EQ(Player().xpos(), 400);
  bench.Mouse(123, 77, "handmouseover");
  EXPECT_EQ(Player().xpos(), 400);
  QuietTick();
  EXPECT_EQ(Player().xpos(), 123);
}

TEST_F(BlinkerPointer, MovesThePaddleAtTheTickOnly) {
  bench.StartGame();
  bench.Mouse(420, 17, "handmouseover");
  EXPECT_EQ(Paddle().xpos(), 350);
  EXPECT_EQ(Paddle().ypos(), 550);
  bench.GameTick();
  EXPECT_EQ(Paddle().xpos(), 420);
}

TEST_F(ShooterPointer, IsTakenAsItStandsOnTheScreenAlsoInAMovedArea) {
  bench.StartGame();
  bench.area->Setxpos(100);
  bench.area->Setypos(50);
  for (int i = 0; i < 5; ++i) QuietTick();
  bench.Mouse(123, 77, "handmouseover");
  bench.Click(200, 300);
  EXPECT_EQ(Goal("cell111"), 123);
  EXPECT_EQ(Goal("shot1"), 200);
  EXPECT_TRUE(bench.Cell("shot1").Visible());
}

TEST_F(BlinkerPointer, IsTakenAsItStandsOnTheScreenAlsoInAMovedArea) {
  bench.StartGame();
  bench.area->Setxpos(100);
  bench.Mouse(420, 17, "handmouseover");
  EXPECT_EQ(bench.Number(Paddle(), "XGoal"), 420);
}

TEST(BobblerPointer, IsTakenAsItStandsOnTheScreenAlsoInAMovedArea) {
  BobblerBench bench;
  bench.StartGame();
  bench.SpreadOut();
  bench.area->Setxpos(100);
  bench.area->Setypos(50);
  bench.ClickCell(2);
  EXPECT_FALSE(bench.Cell("cell2").Visible());
}

TEST(BobblerPointer, WinsWithItsLastBadCellAtTheNextTickOnly) {
  BobblerBench bench;
  bench.StartGame();
  bench.SpreadOut();
  for (int i = 4; i <= 30; i += 2) bench.Cell("cell" + std::to_string(i)).SetVisible(false);
  bench.ClickCell(2);
  EXPECT_EQ(bench.top->messages, Lines{});
  EXPECT_EQ(bench.Counter("m_bStopped"), 0);
  bench.GameTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_won"});
}

TEST(BobblerPointer, CostsLivesBelowNothingWithoutAnEnd) {
  BobblerBench bench;
  bench.StartGame();
  bench.SpreadOut();
  dynamic_cast<CellPlayArea&>(*bench.area).DecrementLife(5);
  bench.ClickCell(1);
  EXPECT_EQ(bench.Counter("m_nLives"), -1);
  EXPECT_EQ(bench.top->messages, Lines{}) << "only exactly none ends the game";
}

}  // namespace
}  // namespace quendle
