#include <gtest/gtest.h>

#include "subgames/CellObject_Bobbler.h"
#include "subgames/PlayAreaObject_Bob.h"
#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

struct BobblerGame : testing::Test {
  void Start() {
    bench.StartGame();
    bench.SpreadOut();
  }
  void PutCell(CellObject_Bobbler& cell, int x, int y) {
    cell.Setxpos(static_cast<std::int16_t>(x));
    cell.Setypos(static_cast<std::int16_t>(y));
  }
  CellObject_Bobbler& CellNumber(int number) {
    return bench.CellAs<CellObject_Bobbler>("cell" + std::to_string(number));
  }
  std::string SpeedAfterUpdate(int x, int y) {
    auto& cell = CellNumber(1);
    cell.SetHDisposition(1);
    cell.SetVDisposition(2);
    PutCell(cell, x, y);
    cell.Update();
    return std::to_string(cell.GetHDisposition()) + "," + std::to_string(cell.GetVDisposition());
  }
  void HideBad() {
    for (auto& entry : bench.area->Children()) {
      if (entry.value->ObjectType() == "bad") entry.value->SetVisible(false);
    }
  }

  BobblerBench bench;
};

TEST_F(BobblerGame, OddCellsAreGoodAndEvenOnesBad) {
  bench.TurnOnGame();
  EXPECT_EQ(bench.Counter("m_colCells"), 30);
  EXPECT_EQ(bench.Counter("m_nCellCount"), 30);
  EXPECT_EQ(CellNumber(1).ObjectType(), "good");
  EXPECT_EQ(CellNumber(30).ObjectType(), "bad");
}

TEST_F(BobblerGame, TheFileOfABadCellIsTheFirstDivisorThatFits) {
  for (int file = 1; file <= 6; ++file) {
    bench.PutCell("game\\cell" + std::to_string(file) + "data", 10 * file, 40, {"default"});
  }
  bench.TurnOnGame();
  EXPECT_EQ(CellNumber(24).width(), 10);
  EXPECT_EQ(CellNumber(20).width(), 20);
  EXPECT_EQ(CellNumber(16).width(), 30);
  EXPECT_EQ(CellNumber(18).width(), 40);
  EXPECT_EQ(CellNumber(28).width(), 50);
  EXPECT_EQ(CellNumber(26).width(), 60);
}

TEST_F(BobblerGame, SpeedAndPlaceAreDrawnInThisOrder) {
  bench.Queue({0.9999, 0.0, 0.5, 0.25});
  bench.TurnOnGame();
  EXPECT_EQ(CellNumber(1).GetHDisposition(), 4);
  EXPECT_EQ(CellNumber(1).GetVDisposition(), -5);
  EXPECT_EQ(CellNumber(1).xpos(), 400);
  EXPECT_EQ(CellNumber(1).ypos(), 150);
}

TEST_F(BobblerGame, SpeedsRoundHalfToEvenAndMayBeNothing) {
  bench.Queue({0.5625, 0.5, 0, 0});
  bench.TurnOnGame();
  EXPECT_EQ(CellNumber(1).GetHDisposition(), 0) << "0.5";
  EXPECT_EQ(CellNumber(1).GetVDisposition(), 0);
}

TEST_F(BobblerGame, TheGeneratorIsSeededForTheFieldAndForEachCell) {
  bench.TurnOnGame();
  EXPECT_EQ(bench.backend.random.Seeds(), 31);
  EXPECT_NE(CellNumber(1).xpos() * 1000 + CellNumber(1).ypos(),
            CellNumber(2).xpos() * 1000 + CellNumber(2).ypos())
      << "seeding within one moment still gives new numbers";
}

TEST_F(BobblerGame, ACellTakesItsFullSpeedAwayFromASide) {
  bench.TurnOnGame();
  EXPECT_EQ(SpeedAfterUpdate(400, 300), "1,2") << "it keeps its speed in the field";
  EXPECT_EQ(SpeedAfterUpdate(780, 300), "-10,2");
  EXPECT_EQ(SpeedAfterUpdate(779, 300), "1,2");
  EXPECT_EQ(SpeedAfterUpdate(0, 300), "10,2");
  EXPECT_EQ(SpeedAfterUpdate(1, 300), "1,2");
  EXPECT_EQ(SpeedAfterUpdate(400, 580), "1,-8");
  EXPECT_EQ(SpeedAfterUpdate(400, 579), "1,2");
  EXPECT_EQ(SpeedAfterUpdate(400, 0), "1,8");
  EXPECT_EQ(SpeedAfterUpdate(400, 1), "1,2");
  EXPECT_EQ(SpeedAfterUpdate(-5, 590), "10,-8");
}

TEST_F(BobblerGame, AClickOnABadCellHidesIt) {
  Start();
  bench.ClickCell(2);
  EXPECT_FALSE(CellNumber(2).Visible());
  EXPECT_EQ(bench.LastSound(CellNumber(2)), "hit");
  EXPECT_EQ(bench.Counter("m_nLives"), 5);
}

TEST_F(BobblerGame, AClickOnAGoodCellCostsALifeAndBringsBadCells) {
  Start();
  bench.ClickCell(1);
  EXPECT_TRUE(CellNumber(1).Visible());
  EXPECT_EQ(bench.LastSound(CellNumber(1)), "owww");
  EXPECT_EQ(bench.Counter("m_nLives"), 4);
  EXPECT_EQ(bench.Counter("m_nCellCount"), 33);
  EXPECT_EQ(CellNumber(31).ObjectType(), "bad") << "odd numbers too";
  EXPECT_TRUE(CellNumber(33).Visible());
}

TEST_F(BobblerGame, AnOddBadCellTakesTheLastFile) {
  bench.PutCell("game\\cell6data", 33, 33, {"default"});
  Start();
  bench.ClickCell(1);
  EXPECT_EQ(CellNumber(31).width(), 33);
}

TEST_F(BobblerGame, AllCellsUnderThePointerCount) {
  Start();
  PutCell(CellNumber(1), 300, 500);
  PutCell(CellNumber(2), 305, 505);
  bench.Queue(std::vector<double>(12, 0.01));  // the new cells stand elsewhere
  bench.Click(310, 510);
  EXPECT_FALSE(CellNumber(2).Visible());
  EXPECT_EQ(bench.Counter("m_nLives"), 4);
}

TEST_F(BobblerGame, AnInvisibleCellIsNotClicked) {
  Start();
  CellNumber(1).SetVisible(false);
  bench.ClickCell(1);
  EXPECT_EQ(bench.Counter("m_nLives"), 5);
}

TEST_F(BobblerGame, APointerThatOnlyMovesDoesNothing) {
  Start();
  bench.Mouse(CellNumber(1).xpos() + 5, CellNumber(1).ypos() + 5, "handmouseover");
  EXPECT_EQ(bench.Counter("m_nLives"), 5);
}

TEST_F(BobblerGame, BadIsComparedExactly) {
  Start();
  CellNumber(2).SetObjectType("Bad");
  bench.ClickCell(2);
  EXPECT_TRUE(CellNumber(2).Visible());
  EXPECT_EQ(bench.Counter("m_nLives"), 4);
}

TEST_F(BobblerGame, NewCellsStopAtFortyOrMore) {
  Start();
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(bench.Counter("m_nCellCount"), 30 + 3 * i);
    bench.Queue(std::vector<double>(12, 0.01));
    bench.ClickCell(1);
  }
  EXPECT_EQ(bench.Counter("m_nCellCount"), 42);
  EXPECT_EQ(bench.Counter("m_nLives"), 1);
  bench.ClickCell(1);
  EXPECT_EQ(bench.Counter("m_nCellCount"), 42);
}

TEST_F(BobblerGame, TheFifthClickOnAGoodCellLoses) {
  Start();
  for (int i = 0; i < 5; ++i) {
    bench.Queue(std::vector<double>(12, 0.01));
    bench.ClickCell(1);
  }
  EXPECT_EQ(bench.top->messages, Lines{"subgame_lost"});
  EXPECT_EQ(bench.Counter("m_bStopped"), 1);
}

TEST_F(BobblerGame, TheClickThatLosesStillAddsBadCells) {
  Start();
  dynamic_cast<CellPlayArea&>(*bench.area).DecrementLife(4);
  bench.ClickCell(1);
  EXPECT_EQ(bench.top->messages, Lines{"subgame_lost"});
  EXPECT_EQ(bench.CellNames(), (Lines{"cell31", "cell32", "cell33"}));
  EXPECT_EQ(bench.Counter("m_nCellCount"), 33);
}

TEST_F(BobblerGame, TheScanEndsWithTheGame) {
  Start();
  dynamic_cast<CellPlayArea&>(*bench.area).DecrementLife(4);
  PutCell(CellNumber(1), 300, 500);
  PutCell(CellNumber(3), 300, 500);
  // The bad cells that still come stand under the pointer.
  for (int i = 0; i < 3; ++i) bench.Queue({0.5, 0.5, 300.0 / 800, 500.0 / 600});
  bench.Click(310, 510);
  EXPECT_EQ(bench.top->messages, Lines{"subgame_lost"});
  EXPECT_EQ(bench.Counter("m_nLives"), 0);
  EXPECT_EQ(CellNumber(33).xpos(), 300);
  EXPECT_TRUE(CellNumber(33).Visible());
}

TEST_F(BobblerGame, ASecondGameGoesOnWithTheLivesThatAreLeft) {
  Start();
  bench.ClickCell(1);
  bench.game->TurnOff();
  bench.game->TurnOn();
  EXPECT_EQ(bench.Counter("m_nLives"), 4);
  EXPECT_EQ(bench.Counter("m_nCellCount"), 30);
}

TEST_F(BobblerGame, HidingTheLastBadCellWinsAtTheNextTick) {
  Start();
  HideBad();
  EXPECT_TRUE(bench.top->messages.empty());
  bench.GameTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_won"});
}

TEST_F(BobblerGame, WithoutAVisibleGoodCellTheGameIsLost) {
  Start();
  for (int i = 1; i <= 29; i += 2) CellNumber(i).SetVisible(false);
  bench.GameTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_lost"});
}

TEST_F(BobblerGame, WithoutAnyVisibleCellTheGameIsWon) {
  Start();
  HideBad();
  for (int i = 1; i <= 29; i += 2) CellNumber(i).SetVisible(false);
  bench.GameTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_won"});
}

TEST_F(BobblerGame, HiddenCellsMoveToo) {
  Start();
  auto& cell = CellNumber(2);
  cell.SetVisible(false);
  PutCell(cell, 400, 300);
  cell.SetHDisposition(3);
  bench.GameTick();
  EXPECT_EQ(cell.xpos(), 403);
}

TEST_F(BobblerGame, TheEndStopsTheGameInFull) {
  Start();
  (*bench.game->Children().Find("Play1"))->SetVisible(false);
  bench.area->EndGame(true);
  EXPECT_TRUE(bench.IsShown("Play1"));
  EXPECT_EQ(bench.Counter("m_bStopped"), 1);
}

TEST_F(BobblerGame, ReplayMessagesAreNotForThisGame) {
  Start();
  bench.area->Send("replaygame");
  EXPECT_EQ(bench.Counter("m_nRunState"), 1);
  EXPECT_EQ(bench.top->messages, Lines{"replaygame"});
}

TEST_F(BobblerGame, EnemyFireDoesNothing) {
  Start();
  dynamic_cast<CellPlayArea&>(*bench.area).EnemyFire(10, 10);
  EXPECT_EQ(bench.Counter("m_colCells"), 30);
}

TEST_F(BobblerGame, ACellTouchesAnotherWithItsCornersOnly) {
  Start();
  PutCell(CellNumber(1), 300, 500);
  PutCell(CellNumber(2), 310, 510);
  EXPECT_TRUE(CellNumber(1).DidWeHitCell(CellNumber(2)));
  PutCell(CellNumber(2), 340, 510);
  EXPECT_FALSE(CellNumber(1).DidWeHitCell(CellNumber(2)));
}

}  // namespace
}  // namespace quendle
