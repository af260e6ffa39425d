#include <gtest/gtest.h>

#include "subgames/CellObject_Shooter.h"
#include "subgames/CellObject_Shot.h"
#include "subgames/PlayAreaObject_Shtr.h"
#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

struct ShooterGame : testing::Test {
  void Start() { bench.StartGame(); }
  void Ticks(int count) {
    for (int i = 0; i < count; ++i) QuietTick();
  }
  // A tick in which no enemy fires.
  void QuietTick() {
    int enemies = 0;
    for (const auto& entry : bench.area->Children()) {
      const auto* enemy = dynamic_cast<CellObject_Shooter*>(entry.value.get());
      if (enemy != nullptr && !enemy->IsGoodCell() && enemy->Visible()) ++enemies;
    }
    bench.NoFire(enemies);
    bench.GameTick();
  }
  // Past the shots that stand at the corner and the player's first delay.
  void Settle() { Ticks(5); }
  CellObject_Shot& Shot(int number) {
    return bench.CellAs<CellObject_Shot>("shot" + std::to_string(number));
  }
  PlayAreaObject_Shtr& Area() { return dynamic_cast<PlayAreaObject_Shtr&>(*bench.area); }
  int VisibleShots() {
    int count = 0;
    for (int i = 1; i <= 10; ++i) count += Shot(i).Visible() ? 1 : 0;
    return count;
  }

  // Whether a good shot at this place from an enemy's, which has 40 by 30 pixels, hits it. The shot
  // has 4 by 10.
  bool StrikesEnemy(int dx, int dy) {
    auto& enemy = bench.CellAs<CellObject_Shooter>("cell21");
    enemy.SetVisible(true);
    auto& shot = Shot(1);
    shot.Reset();
    shot.SetVisible(true);
    shot.SetGoodCell(true);
    // Where the enemy will stand in this tick, before the shots are looked at.
    const auto x = enemy.XGoal() + bench.Number(enemy, "side offset");
    shot.Setxpos(static_cast<std::int16_t>(x + dx));
    shot.Setypos(static_cast<std::int16_t>(enemy.ypos() + dy));
    QuietTick();
    return !enemy.Visible();
  }

  ShooterBench bench;
};

TEST_F(ShooterGame, EnemiesShotsAndThePlayerStandInThisOrder) {
  bench.TurnOnGame();
  EXPECT_EQ(bench.CellNames(),
            (Lines{"cell21", "cell22", "shot1", "shot2", "shot3", "shot4", "shot5", "shot6",
                   "shot7", "shot8", "shot9", "shot10", "cell111"}));
  EXPECT_EQ(bench.Cell("cell111").ObjectType(), "cell1");
  EXPECT_EQ(bench.Cell("shot3").ObjectType(), "shot");
  EXPECT_EQ(bench.Counter("m_nLives"), 2);
  EXPECT_EQ(bench.Counter("player y"), 535);
  EXPECT_EQ(bench.Number(bench.Cell("cell22"), "XGoal"), 300);
  EXPECT_EQ(bench.Number(bench.Cell("cell111"), "XGoal"), 400);
  EXPECT_FALSE(bench.Cell("cell21").Visible());
}

TEST_F(ShooterGame, OneOfSeveralFormationsIsChosenHalfToEven) {
  for (const auto& [drawn, formation] : {std::pair{0.0, 1}, std::pair{0.24, 1}, std::pair{0.25, 2},
                                         std::pair{0.75, 2}, std::pair{0.76, 3}}) {
    ShooterBench three("1 1 * 2 2 3 3 * 4 4 5 5 6 6 *");
    three.Queue({drawn});
    three.TurnOnGame();
    EXPECT_EQ(three.Counter("m_nFormation"), formation) << drawn;
  }
}

TEST_F(ShooterGame, ASingleFormationIsTaken) {
  bench.Queue({0.999});
  bench.TurnOnGame();
  EXPECT_EQ(bench.Counter("m_nFormation"), 1);
}

TEST_F(ShooterGame, EnemyFilesAreDrawnFromTheMiddleLines) {
  bench.files.Put("\\info\\cells.txt",
                  Text({"\\info\\player.txt", "\\info\\enemy.txt", "\\info\\enemy.txt",
                        "\\info\\enemy.txt", "\\info\\shot.txt"}));
  // The formation, then a file and a side speed for each enemy.
  bench.Queue({0, 0.99, 0, 0.25, 0});
  bench.TurnOnGame();
  EXPECT_EQ(bench.CellNames()[0], "cell41");
  EXPECT_EQ(bench.CellNames()[1], "cell22") << "2.5 goes to the even number";
}

TEST_F(ShooterGame, AListOfTwoLinesGivesTheEnemiesThePlayersFileOrTheShots) {
  bench.files.Put("\\info\\cells.txt", Text({"\\info\\player.txt", "\\info\\shot.txt"}));
  bench.Queue({0, 0.9, 0, 0.4, 0});
  bench.TurnOnGame();
  EXPECT_EQ(bench.CellNames()[0], "cell11");
  EXPECT_EQ(bench.Cell("cell11").width(), 40) << "as the player";
  EXPECT_EQ(bench.CellNames()[1], "cell22");
  EXPECT_EQ(bench.Cell("cell22").width(), 4) << "as the shot";
}

TEST_F(ShooterGame, AnAcceptedCellLeavesTheOthersTheirParts) {
  Start();
  bench.area->Send("selectcell21");
  bench.area->Send("acceptedcell");
  Settle();
  ASSERT_FALSE(Shot(1).Visible());
  bench.Click(300, 200);
  EXPECT_TRUE(Shot(1).Visible()) << "the first shot is no enemy now";
  EXPECT_EQ(Shot(1).YGoal(), 535);
  EXPECT_FALSE(Shot(2).Visible());
  bench.Mouse(123, 200, "handmouseover");
  QuietTick();
  EXPECT_EQ(bench.Cell("cell111").xpos(), 123) << "the last cell is still the player";
}

TEST_F(ShooterGame, CellNamesThatCollideAreFatal) {
  // The file 11 of the first enemy gives the player's name.
  Lines cells{"\\info\\player.txt"};
  for (int i = 2; i <= 12; ++i) cells.push_back("\\info\\enemy.txt");
  cells.push_back("\\info\\shot.txt");
  bench.files.Put("\\info\\cells.txt", Text(cells));
  bench.Queue({0, 0.9, 0, 0, 0});
  EXPECT_EQ(FatalOf([&] { bench.TurnOnGame(); }), "there are two child entries named \"cell111\"");
}

TEST_F(ShooterGame, TheSideSpeedIsThreeToFive) {
  // Formation; file and speed of each enemy; the player's speed.
  bench.Queue({0, 0, 0.2, 0, 0.25, 0.8});
  bench.TurnOnGame();
  EXPECT_EQ(bench.Number(bench.Cell("cell21"), "side speed"), 3);
  EXPECT_EQ(bench.Number(bench.Cell("cell22"), "side speed"), 4) << "3.5 goes to the even number";
  EXPECT_EQ(bench.Number(bench.Cell("cell111"), "side speed"), 5);
}

TEST_F(ShooterGame, WithoutGameDataTurningOnIsFatal) {
  SubgameBench empty("playareashooter", "nothing");
  EXPECT_EQ(FatalOf([&] { empty.TurnOnGame(); }),
            "play area \"area\" has no game data to build its field from");
}

TEST_F(ShooterGame, AllShotsStandAtTheCornerForTwoTicks) {
  Start();
  EXPECT_EQ(VisibleShots(), 10);
  QuietTick();
  EXPECT_EQ(Shot(4).xpos(), 0);
  EXPECT_EQ(Shot(4).ypos(), 0);
  EXPECT_EQ(VisibleShots(), 10);
  QuietTick();
  EXPECT_EQ(VisibleShots(), 0);
}

TEST_F(ShooterGame, ThePlayerFollowsThePointerAlongItsLine) {
  Start();
  bench.Mouse(123, 77, "handmouseover");
  QuietTick();
  EXPECT_EQ(bench.Cell("cell111").xpos(), 123);
  EXPECT_EQ(bench.Cell("cell111").ypos(), 535);
}

TEST_F(ShooterGame, TheFirstShotNeedsFiveTicks) {
  Start();
  Ticks(4);
  bench.Click(200, 300);
  EXPECT_EQ(VisibleShots(), 0);
  Ticks(1);
  bench.Click(200, 300);
  EXPECT_EQ(VisibleShots(), 1);
  EXPECT_EQ(bench.LastSound(bench.Cell("cell111")), "fire");
  EXPECT_EQ(bench.Counter("m_nFireDelay"), 5);
}

TEST_F(ShooterGame, AClickWithinFiveTicksOfTheLastShotFiresNothing) {
  Start();
  Settle();
  bench.Click(600, 300);
  Ticks(4);
  bench.Click(600, 300);
  EXPECT_EQ(VisibleShots(), 1);
  Ticks(1);
  bench.Click(600, 300);
  EXPECT_EQ(VisibleShots(), 2);
}

TEST_F(ShooterGame, AShotFliesTwelvePixelsATickFromThePlayersLine) {
  Start();
  Settle();
  bench.Click(600, 100);
  QuietTick();
  EXPECT_EQ(Shot(1).xpos(), 600);
  EXPECT_EQ(Shot(1).ypos(), 535);
  QuietTick();
  EXPECT_EQ(Shot(1).ypos(), 523);
  Ticks(44);
  EXPECT_EQ(Shot(1).ypos(), -5);
  EXPECT_FALSE(Shot(1).Visible());
}

TEST_F(ShooterGame, ThePoolOfTenIsSharedWithTheEnemies) {
  Start();
  Settle();
  for (int i = 0; i < 10; ++i) Area().EnemyFire(700, 10);
  EXPECT_EQ(VisibleShots(), 10);
  bench.Click(200, 300);
  EXPECT_EQ(bench.Counter("m_nFireDelay"), 0) << "nothing was fired";
  Area().EnemyFire(100, 10);
  EXPECT_EQ(Shot(10).XGoal(), 700);
}

TEST_F(ShooterGame, EnemiesSlideAndStayOnTheirRows) {
  bench.Queue({0, 0, 0.999, 0, 0.999, 0});
  Start();
  auto& enemy = bench.Cell("cell21");
  QuietTick();
  EXPECT_EQ(enemy.xpos(), 100);
  QuietTick();
  EXPECT_EQ(enemy.xpos(), 105);
  Ticks(28);
  EXPECT_EQ(enemy.xpos(), 245);
  EXPECT_EQ(bench.Number(enemy, "side offset"), 150);
  EXPECT_EQ(bench.Number(enemy, "down offset"), 8) << "the turn at 150";
  QuietTick();
  EXPECT_EQ(enemy.xpos(), 250);
  Ticks(29);
  EXPECT_EQ(bench.Number(enemy, "side offset"), 0);
  EXPECT_EQ(bench.Number(enemy, "down offset"), 16);
  EXPECT_EQ(enemy.ypos(), 40);
}

TEST_F(ShooterGame, AnEnemyFiresWhenTheDrawIsOneOf150) {
  Start();
  Settle();
  bench.Queue({1.0 / 150, 0});
  bench.GameTick();
  EXPECT_EQ(VisibleShots(), 1);
  EXPECT_FALSE(Shot(1).IsGoodCell());
  EXPECT_EQ(Shot(1).XGoal(), bench.Cell("cell21").xpos());
  EXPECT_EQ(Shot(1).YGoal(), 40);
  EXPECT_EQ(bench.LastSound(bench.Cell("cell111")), "") << "enemies fire without a sound";
}

TEST_F(ShooterGame, AnEnemyShotFallsAndVanishesBelowTheField) {
  Start();
  Settle();
  bench.Mouse(10, 10, "handmouseover");
  Area().EnemyFire(700, 580);
  QuietTick();
  EXPECT_EQ(Shot(1).ypos(), 580);
  QuietTick();
  EXPECT_EQ(Shot(1).ypos(), 592);
  EXPECT_TRUE(Shot(1).Visible());
  QuietTick();
  EXPECT_EQ(Shot(1).ypos(), 604);
  EXPECT_FALSE(Shot(1).Visible());
}

TEST_F(ShooterGame, AHitHidesTheEnemyAndTheShotInItsLastTicks) {
  Start();
  Settle();
  auto& enemy = bench.Cell("cell21");
  auto& shot = Shot(1);
  shot.SetVisible(true);
  shot.SetGoal(static_cast<std::int16_t>(enemy.xpos() + 10), 45);
  shot.Reset();
  shot.SetGoodCell(true);
  shot.Setxpos(static_cast<std::int16_t>(enemy.xpos() + 10));
  shot.Setypos(45);
  QuietTick();
  EXPECT_FALSE(enemy.Visible());
  EXPECT_EQ(bench.LastSound(enemy), "hit");
  EXPECT_TRUE(shot.GettingDestroyed());
  EXPECT_EQ(shot.CurrentState(), "bad");
  EXPECT_TRUE(shot.Visible());
  QuietTick();
  EXPECT_TRUE(shot.Visible());
  QuietTick();
  EXPECT_FALSE(shot.Visible());
}

TEST_F(ShooterGame, AGoodShotCanTakeSeveralEnemiesAlsoInItsLastTicks) {
  Start();
  Settle();
  auto& first = bench.Cell("cell21");
  auto& second = bench.Cell("cell22");
  auto& shot = Shot(1);
  shot.SetVisible(true);
  shot.SetGettingDestroyed(true);
  for (auto* enemy : {&first, &second}) {
    dynamic_cast<CellObject_Shooter&>(*enemy).SetGoal(500, 200);
  }
  QuietTick();  // the enemies take their places
  shot.SetGettingDestroyed(true);
  shot.SetVisible(true);
  shot.SetGoal(520, 210);
  shot.Setxpos(530);
  shot.Setypos(210);
  QuietTick();
  EXPECT_FALSE(first.Visible());
  EXPECT_FALSE(second.Visible());
}

TEST_F(ShooterGame, AnEnemyThatWasHitRecentlyIsSpared) {
  Start();
  Settle();
  auto& enemy = bench.CellAs<CellObject_Shooter>("cell21");
  auto& shot = Shot(1);
  shot.SetVisible(true);
  shot.Reset();
  shot.SetGoal(static_cast<std::int16_t>(enemy.xpos() + 10), 45);
  shot.Setxpos(static_cast<std::int16_t>(enemy.xpos() + 10));
  shot.Setypos(45);
  enemy.SetHitRecently(3);
  QuietTick();
  EXPECT_TRUE(enemy.Visible());
  EXPECT_EQ(enemy.HitRecently(), 2);
}

TEST_F(ShooterGame, TheLastKillWinsOneTickLater) {
  Start();
  Settle();
  bench.Cell("cell22").SetVisible(false);
  bench.Cell("cell21").SetVisible(false);
  EXPECT_TRUE(bench.top->messages.empty());
  QuietTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_won"});
  EXPECT_EQ(bench.Counter("m_colCells"), 0);
  EXPECT_TRUE(bench.CellNames().empty());
}

struct PlayerHits : ShooterGame {
  // An enemy shot whose foot is on the player.
  void StrikePlayer(int number) {
    auto& player = bench.Cell("cell111");
    auto& shot = Shot(number);
    shot.SetVisible(true);
    shot.SetGoal(static_cast<std::int16_t>(player.xpos() + 10), 535);
    shot.Reset();
    shot.SetGoodCell(false);
    shot.Setxpos(static_cast<std::int16_t>(player.xpos() + 10));
    shot.Setypos(535);
  }
  // Whether an enemy shot hits the player, when its foot is at this place from the player's.
  bool StrikesPlayer(int dx, int foot) {
    bench.game->TurnOff();
    bench.game->TurnOn();
    bench.area->Send("startgame");
    Settle();
    auto& player = bench.Cell("cell111");
    auto& shot = Shot(1);
    shot.Reset();
    shot.SetVisible(true);
    shot.SetGoodCell(false);
    shot.Setxpos(static_cast<std::int16_t>(player.xpos() + dx));
    shot.Setypos(static_cast<std::int16_t>(player.ypos() + foot - shot.height()));
    QuietTick();
    return bench.Counter("m_nLives") == 1;
  }
};

TEST_F(PlayerHits, TwoHitsLoseTheGame) {
  Start();
  Settle();
  StrikePlayer(1);
  QuietTick();
  EXPECT_EQ(bench.Counter("m_nLives"), 1);
  EXPECT_EQ(bench.LastSound(bench.Cell("cell111")), "hit");
  EXPECT_TRUE(bench.top->messages.empty());
  QuietTick();
  EXPECT_EQ(bench.Counter("m_nLives"), 1) << "a dying enemy shot can't hit again";
  StrikePlayer(2);
  QuietTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_lost"});
  EXPECT_EQ(bench.Counter("m_bStopped"), 1);
}

TEST_F(PlayerHits, TheShotThatEndsTheGameIsStillDestroyed) {
  Start();
  Settle();
  std::shared_ptr<GameObjectInterface> shot = *bench.area->Children().Find("shot1");
  StrikePlayer(1);
  QuietTick();
  StrikePlayer(1);
  QuietTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_lost"});
  EXPECT_TRUE(dynamic_cast<CellObject_Shot&>(*shot).GettingDestroyed());
  EXPECT_EQ(bench.Number(*shot, "life"), 2) << "and no longer updated";
}

TEST_F(PlayerHits, AGameThatIsLostInATickIsNotWonInTheSameOne) {
  Start();
  Settle();
  StrikePlayer(1);
  QuietTick();
  bench.Cell("cell21").SetVisible(false);
  bench.Cell("cell22").SetVisible(false);
  StrikePlayer(2);
  QuietTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_lost"});
}

TEST_F(PlayerHits, TurningOnAgainRefillsTheLives) {
  Start();
  Settle();
  StrikePlayer(1);
  QuietTick();
  bench.game->TurnOff();
  bench.game->TurnOn();
  EXPECT_EQ(bench.Counter("m_nLives"), 2);
  EXPECT_EQ(bench.Counter("m_nFireDelay"), 0) << "the delay is not";
}

TEST_F(ShooterGame, TheEndDoesNotShowThePlayButtonAgain) {
  Start();
  (*bench.game->Children().Find("Play1"))->SetVisible(false);
  bench.area->EndGame(true);
  EXPECT_FALSE(bench.IsShown("Play1"));
}

TEST_F(ShooterGame, TurningOffACellDoesNothing) {
  Start();
  bench.game->TurnOff();
  EXPECT_TRUE(bench.Cell("cell21").ObjectOn());
  EXPECT_TRUE(bench.Cell("shot1").ObjectOn());
}

TEST_F(ShooterGame, ACellSwitchesItsState) {
  bench.TurnOnGame();
  auto& enemy = bench.CellAs<CellObject_Shooter>("cell21");
  enemy.SwitchState();
  EXPECT_EQ(enemy.CurrentState(), "bad");
  EXPECT_EQ(enemy.CellState(), 1);
  enemy.SwitchState();
  EXPECT_EQ(enemy.CurrentState(), "default");
}

TEST_F(ShooterGame, TurningOnACellAnewForgetsItsSwitchAndItsHit) {
  bench.TurnOnGame();
  auto& enemy = bench.CellAs<CellObject_Shooter>("cell21");
  enemy.SwitchState();
  enemy.SetHitRecently(4);
  enemy.TurnOn(800, 600);
  EXPECT_EQ(enemy.CellState(), 0);
  EXPECT_EQ(enemy.HitRecently(), 0);
}

TEST_F(ShooterGame, TheDirectivesOfACellHaveNoEffect) {
  auto cell = std::make_shared<CellObject_Shooter>(bench.world);
  LoadArguments arguments;
  arguments.name = "enemy";
  arguments.data_file = "\\info\\enemy.txt";
  arguments.depth = "0";
  arguments.child_list = "nothing";
  arguments.outer = cell;
  arguments.directives = "state_bad visible_off xpos_70";
  cell->LoadObject(arguments);
  EXPECT_EQ(cell->CurrentState(), "default");
  EXPECT_TRUE(cell->Visible());
  EXPECT_EQ(cell->xpos(), 0);
}

TEST_F(ShooterGame, AShotThatIsNotDestroyedAfterAllStillHasTwoTicksToLive) {
  bench.TurnOnGame();
  Shot(1).SetGettingDestroyed(false);
  EXPECT_EQ(bench.Number(Shot(1), "life"), 2);
  EXPECT_EQ(Shot(1).CurrentState(), "default");
}

TEST_F(ShooterGame, TheDownOffsetOfALongGameStopsGrowing) {
  bench.StartGame();
  auto& enemy = bench.CellAs<CellObject_Shooter>("cell21");
  for (int i = 0; i < 4200 * 51; ++i) enemy.Update();
  EXPECT_EQ(bench.Number(enemy, "down offset"), 32767);
}

TEST_F(ShooterGame, TheGeneratorIsSeededForTheFieldAndInEachEnemysTick) {
  Start();
  EXPECT_EQ(bench.backend.random.Seeds(), 1);
  QuietTick();
  EXPECT_EQ(bench.backend.random.Seeds(), 3) << "two enemies";
}

TEST_F(ShooterGame, AnEnemyFiresWhenTheRoundedDrawIsOne) {
  Start();
  Settle();
  for (const auto& [draw, shots] :
       {std::pair{0.49, 0}, std::pair{0.51, 1}, std::pair{1.49, 1}, std::pair{1.51, 0}}) {
    bench.Queue({draw / 150, 0});
    bench.GameTick();
    EXPECT_EQ(VisibleShots(), shots) << draw;
    for (int i = 1; i <= 10; ++i) Shot(i).SetVisible(false);
  }
}

TEST_F(ShooterGame, AShotHitsAnEnemyWithItsUpperCornersAlone) {
  Start();
  Settle();
  EXPECT_TRUE(StrikesEnemy(10, 10));
  EXPECT_TRUE(StrikesEnemy(-3, 10)) << "the right corner";
  EXPECT_TRUE(StrikesEnemy(38, 10)) << "the left corner";
  EXPECT_FALSE(StrikesEnemy(-5, 10));
  EXPECT_FALSE(StrikesEnemy(10, -5)) << "only its foot is on the enemy";
}

TEST_F(PlayerHits, AShotHitsThePlayerWithItsLowerCornersAlone) {
  Start();
  EXPECT_TRUE(StrikesPlayer(10, 5));
  EXPECT_TRUE(StrikesPlayer(-3, 5)) << "the right corner";
  EXPECT_TRUE(StrikesPlayer(38, 5)) << "the left corner";
  EXPECT_FALSE(StrikesPlayer(-5, 5));
  EXPECT_FALSE(StrikesPlayer(10, 35)) << "only its head is on the player";
}

TEST_F(ShooterGame, AnEnemyIsSparedForAsManyTicksAsItWasHit) {
  Start();
  auto& enemy = bench.CellAs<CellObject_Shooter>("cell21");
  enemy.SetHitRecently(1);
  QuietTick();
  EXPECT_EQ(enemy.HitRecently(), 0);
}

TEST_F(ShooterGame, AnEnemyShotStillFliesAtTheFoot) {
  Start();
  Settle();
  bench.Mouse(10, 10, "handmouseover");
  Area().EnemyFire(700, 588);
  Ticks(2);
  EXPECT_EQ(Shot(1).ypos(), 600);
  EXPECT_TRUE(Shot(1).Visible());
  QuietTick();
  EXPECT_EQ(Shot(1).ypos(), 612) << "it moved on from 600";
  EXPECT_FALSE(Shot(1).Visible());
  Area().EnemyFire(700, 589);
  Ticks(2);
  EXPECT_EQ(Shot(1).ypos(), 601);
  EXPECT_FALSE(Shot(1).Visible()) << "one pixel further it is gone";
}

TEST_F(ShooterGame, AShotThatHasDiedIsWholeAgainWhenItIsFired) {
  Start();
  Settle();
  EXPECT_EQ(bench.Number(Shot(1), "life"), 100);
  Shot(1).SetVisible(true);
  Shot(1).SetGettingDestroyed(true);
  EXPECT_EQ(Shot(1).CurrentState(), "bad");
  Ticks(3);
  EXPECT_FALSE(Shot(1).Visible());
  EXPECT_EQ(bench.Number(Shot(1), "life"), 100) << "what is invisible doesn't die again at once";
  bench.Click(600, 300);
  EXPECT_TRUE(Shot(1).Visible());
  EXPECT_EQ(Shot(1).CurrentState(), "default");
  EXPECT_FALSE(Shot(1).GettingDestroyed());
}

}  // namespace
}  // namespace quendle
