#include <gtest/gtest.h>

#include <set>

#include "subgames/CellObject_BBall.h"
#include "subgames/CellObject_Blinker.h"
#include "subgames/PlayAreaObject_Bkr.h"
#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

struct BlinkerGame : testing::Test {
  CellObject_BBall& Ball() { return bench.CellAs<CellObject_BBall>("shot1"); }
  GameObjectInterface& Paddle() { return bench.Cell("paddle1"); }
  GameObjectInterface& Brick(int i) { return bench.Cell("cell" + std::to_string(i)); }
  void PutBall(int x, int y, int h = 10, int v = 10) {
    Ball().Setxpos(static_cast<std::int16_t>(x));
    Ball().Setypos(static_cast<std::int16_t>(y));
    Ball().SetHDisposition(static_cast<std::int16_t>(h));
    Ball().SetVDisposition(static_cast<std::int16_t>(v));
  }
  std::string BallAt() {
    return std::to_string(Ball().xpos()) + "," + std::to_string(Ball().ypos());
  }
  // "H,V" after a hit on an object at x, y while the ball is dx right of it and dy above it.
  std::string Bounce(int x, int y, int dx, int dy) {
    auto& other = Brick(1);
    other.Setxpos(static_cast<std::int16_t>(x));
    other.Setypos(static_cast<std::int16_t>(y));
    PutBall(x + dx, y - dy);
    Ball().ChangeDirection(other, 1);
    return std::to_string(Ball().GetHDisposition()) + "," +
           std::to_string(Ball().GetVDisposition());
  }

  BlinkerBench bench;
};

TEST_F(BlinkerGame, ThirtyTwoBricksTakeTwentyPlaces) {
  bench.TurnOnGame();
  std::set<std::pair<int, int>> places;
  for (int i = 1; i <= 32; ++i) places.emplace(Brick(i).xpos(), Brick(i).ypos());
  EXPECT_EQ(places.size(), 20u);
  EXPECT_EQ(Brick(1).xpos(), 150);
  EXPECT_EQ(Brick(1).ypos(), 0);
  EXPECT_EQ(Brick(3).xpos(), 100);
  EXPECT_EQ(Brick(3).ypos(), 50);
  EXPECT_EQ(Brick(32).xpos(), 200);
  EXPECT_EQ(Brick(32).ypos(), 300);
  EXPECT_EQ(Brick(7).ObjectType(), "cell1");
  EXPECT_EQ(bench.Counter("m_colCells"), 32) << "ball and paddle don't count";
}

TEST_F(BlinkerGame, TheBrickFileIsTheFirstDivisorThatFits) {
  for (int file = 1; file <= 5; ++file) {
    bench.PutCell("game\\cell" + std::to_string(file) + "data", 10 * file, 40, {"default"});
  }
  bench.TurnOnGame();
  EXPECT_EQ(Brick(30).width(), 10);
  EXPECT_EQ(Brick(20).width(), 20);
  EXPECT_EQ(Brick(8).width(), 30);
  EXPECT_EQ(Brick(9).width(), 40);
  EXPECT_EQ(Brick(7).width(), 50);
}

TEST_F(BlinkerGame, BallAndPaddleBeginAtTheirPlaces) {
  bench.TurnOnGame();
  EXPECT_EQ(BallAt(), "300,300");
  EXPECT_EQ(Paddle().xpos(), 350);
  EXPECT_EQ(Paddle().ypos(), 550);
  EXPECT_EQ(Paddle().ObjectType(), "paddle");
  EXPECT_EQ(bench.Counter("m_nBalls"), 3);
}

TEST_F(BlinkerGame, TwoNumbersAreDrawnAndDropped) {
  bench.Queue({0.1, 0.2, 0.3});
  bench.TurnOnGame();
  EXPECT_EQ(bench.backend.random.Rnd(), 0.3);
}

TEST_F(BlinkerGame, ThePaddleJumpsToTheCornerUntilThePointerMoves) {
  bench.StartGame();
  bench.GameTick();
  EXPECT_EQ(Paddle().xpos(), 0);
  EXPECT_EQ(Paddle().ypos(), 0);
  bench.Mouse(420, 17, "handmouseover");
  bench.GameTick();
  EXPECT_EQ(Paddle().xpos(), 420);
  EXPECT_EQ(Paddle().ypos(), 550);
}

TEST_F(BlinkerGame, TheFolderOfTheFilesIsNamedAfterTheSubgame) {
  bench.files.Remove("\\info\\game\\balldata.txt");
  EXPECT_EQ(FatalOf([&] { bench.TurnOnGame(); }),
            "info\\game\\balldata.txt: File \\info\\game\\balldata.txt not found");
}

TEST_F(BlinkerGame, AnAreaInNoSubgameCanNotFindItsFiles) {
  bench.LoadGame();
  bench.area->SetParent({});
  EXPECT_EQ(FatalOf([&] { bench.area->TurnOn(); }),
            "play area \"area\" is in no subgame, after which the folder of its cells is named");
}

TEST_F(BlinkerGame, TheBallBouncesAtTheSidesAndTheTop) {
  bench.StartGame();
  bench.HideAllBricks();
  Brick(1).SetVisible(true);
  Brick(1).Setxpos(700);
  Brick(1).Setypos(500);
  PutBall(784, 200);
  bench.GameTick();
  EXPECT_EQ(BallAt(), "774,210");
  EXPECT_EQ(bench.LastSound(Ball()), "bounce");
  PutBall(0, 200, -10, 10);
  bench.GameTick();
  EXPECT_EQ(BallAt(), "10,210");
  PutBall(300, 0, 10, -20);
  bench.GameTick();
  EXPECT_EQ(BallAt(), "310,10");
}

TEST_F(BlinkerGame, ABrickThatIsTouchedVanishes) {
  bench.StartGame();
  PutBall(200, 300);
  bench.GameTick();
  EXPECT_FALSE(Brick(32).Visible());
  EXPECT_EQ(bench.LastSound(Brick(32)), "bounce");
  EXPECT_TRUE(Brick(31).Visible());
}

TEST_F(BlinkerGame, OneTouchTakesAllBricksOfAPlaceAndTheLastDecides) {
  bench.StartGame();
  bench.HideAllBricks();
  for (int i : {3, 6, 1}) Brick(i).SetVisible(true);
  Brick(3).Setxpos(400);
  Brick(3).Setypos(200);
  Brick(6).Setxpos(380);
  Brick(6).Setypos(200);
  PutBall(400, 215);
  bench.GameTick();
  EXPECT_FALSE(Brick(3).Visible());
  EXPECT_FALSE(Brick(6).Visible());
  // From brick 6 the ball is 20 right and 15 below: 323 degrees.
  EXPECT_EQ(Ball().GetHDisposition(), -10);
  EXPECT_EQ(Ball().GetVDisposition(), -8);
}

TEST_F(BlinkerGame, ABallInsideABigBrickIsFoundByTheBricksCornersToo) {
  bench.PutCell("game\\balldata", 200, 200, {"default"});
  bench.StartGame();
  bench.HideAllBricks();
  Brick(1).SetVisible(true);
  Brick(1).Setxpos(400);
  Brick(1).Setypos(300);
  PutBall(320, 220);
  EXPECT_TRUE(Ball().DidWeHitCell(Brick(1)));
  PutBall(100, 220);
  EXPECT_FALSE(Ball().DidWeHitCell(Brick(1)));
}

TEST_F(BlinkerGame, BricksTurnTheBallByTheAngle) {
  bench.TurnOnGame();
  EXPECT_EQ(Bounce(300, 100, 20, 10), "-10,5") << "27 degrees";
  EXPECT_EQ(Bounce(300, 100, 10, 10), "10,10") << "computed just above 45 degrees";
  EXPECT_EQ(Bounce(300, 100, 10, 15), "10,15") << "56 degrees";
  EXPECT_EQ(Bounce(300, 100, -10, 5), "-10,-5") << "153 degrees";
  EXPECT_EQ(Bounce(300, 100, -10, -5), "-10,5") << "207 degrees";
  EXPECT_EQ(Bounce(300, 100, -10, -20), "10,20") << "243 degrees";
  EXPECT_EQ(Bounce(300, 100, 10, -15), "10,-15") << "304 degrees";
  EXPECT_EQ(Bounce(300, 100, 20, -10), "-10,-5") << "333 degrees";
}

TEST_F(BlinkerGame, ThePaddleSendsTheBallUpToItsSide) {
  bench.TurnOnGame();
  EXPECT_EQ(Bounce(300, 550, 10, 10), "10,-10");
  EXPECT_EQ(Bounce(300, 550, -10, 10), "-10,-10");
}

TEST_F(BlinkerGame, AtExactlyNinetyDegreesOnThePaddleBothRulesApply) {
  bench.TurnOnGame();
  EXPECT_EQ(Bounce(300, 550, 0, 12), "-10,-20");
}

TEST_F(BlinkerGame, StraightAboveAndBelowABrickTheSlopeIsSteepDown) {
  bench.TurnOnGame();
  EXPECT_EQ(Bounce(300, 100, 0, 12), "10,20") << "90 degrees";
  EXPECT_EQ(Bounce(300, 100, 0, -12), "10,20") << "270 degrees";
  EXPECT_EQ(Bounce(300, 400, 0, -12), "-10,20") << "270 degrees, a paddle's row";
  EXPECT_EQ(Bounce(300, 401, 0, -12), "-10,-20") << "below the bricks it counts as 90";
}

TEST_F(BlinkerGame, AFlatHitStillLeavesTheBallRisingOrFalling) {
  bench.TurnOnGame();
  EXPECT_EQ(Bounce(300, 100, 40, 0), "-10,-1");
  EXPECT_EQ(Bounce(300, 100, 40, 1), "-10,1");
  EXPECT_EQ(Bounce(300, 100, -40, 1), "-10,-1");
}

TEST_F(BlinkerGame, ModeZeroMirrorsOneSpeed) {
  bench.TurnOnGame();
  PutBall(290, 100, 10, 7);
  Brick(1).Setxpos(300);
  Brick(1).Setypos(100);
  Ball().ChangeDirection(Brick(1), 0);
  EXPECT_EQ(Ball().GetHDisposition(), -10);
  PutBall(305, 90, 10, 7);
  Ball().ChangeDirection(Brick(1), 0);
  EXPECT_EQ(Ball().GetVDisposition(), -7);
}

TEST_F(BlinkerGame, ALostBallWaitsForTheReplayButton) {
  bench.StartGame();
  (*bench.game->Children().Find("replay"))->SetVisible(false);
  bench.Mouse(10, 10, "handmouseover");
  PutBall(300, 590);
  bench.GameTick();
  EXPECT_EQ(bench.Counter("m_nBalls"), 2);
  EXPECT_EQ(bench.Counter("m_nRunState"), 2);
  EXPECT_EQ(bench.LastSound(Ball()), "hit") << "the bottom makes no bounce";
  EXPECT_EQ(BallAt(), "300,300");
  EXPECT_TRUE(bench.IsShown("replay"));
  bench.GameTick();
  EXPECT_EQ(BallAt(), "300,300") << "the ticks have stopped";
  bench.area->Send("restartgame");
  bench.GameTick();
  EXPECT_NE(BallAt(), "300,300");
}

TEST_F(BlinkerGame, TheThirdLostBallEndsTheGameWithoutAReplay) {
  bench.StartGame();
  for (int ball = 1; ball <= 3; ++ball) {
    bench.area->Send("restartgame");
    (*bench.game->Children().Find("replay"))->SetVisible(false);
    PutBall(500, 590);
    bench.GameTick();
  }
  EXPECT_EQ(bench.top->messages, Lines{"subgame_lost"});
  EXPECT_FALSE(bench.IsShown("replay"));
  EXPECT_EQ(bench.Counter("m_nBalls"), 0);
}

TEST_F(BlinkerGame, ClearingAllBricksWinsOneTickLater) {
  bench.StartGame();
  bench.HideAllBricks();
  Brick(32).SetVisible(true);
  PutBall(200, 300);
  bench.GameTick();
  EXPECT_FALSE(Brick(32).Visible());
  EXPECT_TRUE(bench.top->messages.empty());
  bench.GameTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_won"});
}

TEST_F(BlinkerGame, BallAndPaddleStillMoveInTheTickOfAWin) {
  bench.StartGame();
  bench.HideAllBricks();
  auto ball = *bench.area->Children().Find("shot1");
  bench.GameTick();
  EXPECT_EQ(ball->xpos(), 310);
}

TEST_F(BlinkerGame, AWonGameDoesNotLoseItsBallInTheSameTick) {
  bench.StartGame();
  bench.HideAllBricks();
  (*bench.game->Children().Find("replay"))->SetVisible(false);
  PutBall(500, 590);
  bench.GameTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_won"});
  EXPECT_EQ(bench.Counter("m_nBalls"), 3);
  EXPECT_FALSE(bench.IsShown("replay"));
}

TEST_F(BlinkerGame, StartingAgainAfterAStopLetsTheTicksRun) {
  bench.StartGame();
  bench.area->Send("replaygame");
  bench.area->Send("stopgame");
  bench.area->Send("startgame");
  EXPECT_EQ(bench.Counter("m_nRunState"), 1);
}

TEST_F(BlinkerGame, TurningOffReachesBricksBallAndPaddle) {
  bench.StartGame();
  bench.game->TurnOff();
  EXPECT_FALSE(Brick(1).ObjectOn());
  EXPECT_FALSE(Ball().ObjectOn());
}

TEST_F(BlinkerGame, OnADiagonalTheAngleMissesItsBoundByTheConversion) {
  bench.TurnOnGame();
  EXPECT_EQ(Bounce(300, 100, -10, 10), "10,-10") << "just below 135 degrees";
  EXPECT_EQ(Bounce(300, 100, -10, -10), "10,10") << "just above 225 degrees";
  EXPECT_EQ(Bounce(300, 100, 10, -10), "10,-10") << "just below 315 degrees";
}

TEST_F(BlinkerGame, ThePaddleTurnsTheBallBeforeTheBallMoves) {
  bench.StartGame();
  bench.Mouse(400, 10, "handmouseover");
  PutBall(300, 300);
  bench.GameTick();  // the paddle takes its place
  PutBall(430, 540, 10, 10);
  bench.GameTick();
  EXPECT_EQ(bench.LastSound(Ball()), "bounce");
  EXPECT_EQ(BallAt(), "440,537") << "one step of its new speed";
}

TEST_F(BlinkerGame, TheBallReachesTheGutterWithItsFoot) {
  bench.StartGame();
  bench.Mouse(10, 10, "handmouseover");
  PutBall(500, 583, 10, 0);
  bench.GameTick();
  EXPECT_EQ(bench.Counter("m_nBalls"), 3);
  PutBall(500, 584, 10, 0);
  bench.GameTick();
  EXPECT_EQ(bench.Counter("m_nBalls"), 2);
}

TEST_F(BlinkerGame, TheGutterItselfMakesNoSound) {
  bench.TurnOnGame();
  PutBall(500, 590);
  Ball().Update();
  EXPECT_TRUE(Ball().DidWeHitTheGutter());
  EXPECT_EQ(bench.LastSound(Ball()), "");
  EXPECT_EQ(BallAt(), "510,580") << "and it turns upward";
}

TEST_F(BlinkerGame, TurningOnAgainRefillsTheBalls) {
  bench.StartGame();
  bench.Mouse(10, 10, "handmouseover");
  PutBall(500, 590);
  bench.GameTick();
  EXPECT_EQ(bench.Counter("m_nBalls"), 2);
  bench.game->TurnOff();
  bench.game->TurnOn();
  EXPECT_EQ(bench.Counter("m_nBalls"), 3);
  EXPECT_EQ(bench.Counter("m_nRunState"), 1);
}

}  // namespace
}  // namespace quendle
