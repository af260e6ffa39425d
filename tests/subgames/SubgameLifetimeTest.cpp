// Games that end inside their own tick or click, through the real rules of the game, where the
// outcome's scripts change the screen again and drop the area.
#include <gtest/gtest.h>

#include "subgames/CellObject_Shot.h"
#include "subgames/CellPlayArea.h"
#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

// The patient's answer to the outcome.
std::string OnOutcome(const std::string& outcome, const Lines& statements) {
  Lines lines{"begin", "if action = " + outcome};
  lines.insert(lines.end(), statements.begin(), statements.end());
  lines.insert(lines.end(), {"endif", "end"});
  return Text(lines);
}

// Enters the subgame, starts it and lets go of the area, so that its screen alone owns it.
template <class Bench>
std::weak_ptr<PlayAreaObject> Enter(Bench& bench) {
  bench.EnterSubgame();
  bench.logic->MapMouseClick(0, 0);  // the first click is kept from a new screen
  bench.area->Send("startgame");
  return bench.area;
}

TEST(SubgameEnd, TheOutcomeGoesBackToThePatient) {
  BobblerBench bench;
  bench.PutObject("cured", "patient");
  bench.StartClinic(OnOutcome("gamewon", {"mtp hideobj_koala"}));
  Enter(bench);
  EXPECT_EQ(bench.Screen(), "game");
  bench.area->EndGame(true);
  EXPECT_EQ(bench.Screen(), "patient1");
  EXPECT_FALSE((*bench.logic->CurrentScreen()->Children().Find("koala"))->Visible());
  EXPECT_EQ(bench.area->GameUpdateTimerID(), 0);
}

TEST(SubgameEnd, AShooterThatIsLostInItsTickMayBeDroppedByTheOutcome) {
  ShooterBench bench;
  bench.StartClinic(OnOutcome("gamelost", {"mtp subgame_game", "mtp cs_floor1hall1"}));
  auto area = Enter(bench);
  bench.Tick(60 * 5);
  // Two shots of enemies stand on the player.
  bench.Mouse(400, 300, "handmouseover");
  auto& player = bench.Cell("cell111");
  for (int number : {1, 2}) {
    auto& shot = bench.CellAs<CellObject_Shot>("shot" + std::to_string(number));
    shot.SetVisible(true);
    shot.SetGoal(410, 535);
    shot.Reset();
    shot.SetGoodCell(false);
    shot.Setxpos(static_cast<std::int16_t>(player.xpos() + 10));
    shot.Setypos(535);
  }
  bench.area.reset();
  bench.Tick(60);
  EXPECT_EQ(bench.Screen(), "floor1hall1");
  EXPECT_TRUE(area.expired()) << "nothing keeps the area that was dropped in its own tick";
}

TEST(SubgameEnd, AShooterThatIsWonInItsTickMayBeDroppedByTheOutcome) {
  ShooterBench bench;
  bench.StartClinic(OnOutcome("gamewon", {"mtp subgame_game", "mtp cs_floor1hall1"}));
  auto area = Enter(bench);
  for (const char* name : {"cell21", "cell22"}) bench.Cell(name).SetVisible(false);
  bench.area.reset();
  bench.Tick(60);
  EXPECT_EQ(bench.Screen(), "floor1hall1");
  EXPECT_TRUE(area.expired());
}

TEST(SubgameEnd, ABlinkerThatIsWonInItsTickMayBeDroppedByTheOutcome) {
  BlinkerBench bench;
  bench.StartClinic(OnOutcome("gamewon", {"mtp subgame_game", "mtp cs_floor1hall1"}));
  auto area = Enter(bench);
  bench.HideAllBricks();
  // In the same tick the ball falls into the gutter.
  bench.Cell("shot1").Setypos(590);
  bench.area.reset();
  bench.Tick(50);
  EXPECT_EQ(bench.Screen(), "floor1hall1");
  EXPECT_TRUE(area.expired());
}

TEST(SubgameEnd, ABlinkerThatIsLostInItsTickMayBeDroppedByTheOutcome) {
  BlinkerBench bench;
  bench.StartClinic(OnOutcome("gamelost", {"mtp subgame_game", "mtp cs_floor1hall1"}));
  auto area = Enter(bench);
  for (int ball = 1; ball <= 3; ++ball) {
    bench.area->Send("restartgame");
    bench.Cell("shot1").Setxpos(500);
    bench.Cell("shot1").Setypos(590);
    if (ball == 3) bench.area.reset();
    bench.Tick(50);
  }
  EXPECT_EQ(bench.Screen(), "floor1hall1");
  EXPECT_TRUE(area.expired());
}

TEST(SubgameEnd, ABobblerThatIsWonInItsTickMayBeDroppedByTheOutcome) {
  BobblerBench bench;
  bench.StartClinic(OnOutcome("gamewon", {"mtp subgame_game", "mtp cs_floor1hall1"}));
  auto area = Enter(bench);
  for (int i = 2; i <= 30; i += 2) bench.Cell("cell" + std::to_string(i)).SetVisible(false);
  bench.area.reset();
  bench.Tick(75);
  EXPECT_EQ(bench.Screen(), "floor1hall1");
  EXPECT_TRUE(area.expired());
}

TEST(SubgameEnd, ABobblerThatIsLostInAClickMayBeDroppedByTheOutcome) {
  BobblerBench bench;
  bench.PutCell("game\\gooddata", 20, 20, {"default", "bad"}, true);
  bench.PutCell("game\\cell6data", 20, 20, {"default", "bad"}, true);
  bench.StartClinic(OnOutcome("gamelost", {"mtp subgame_game", "mtp cs_floor1hall1"}));
  auto area = Enter(bench);
  bench.SpreadOut();
  dynamic_cast<CellPlayArea&>(*bench.area).DecrementLife(4);
  const auto x = static_cast<std::int16_t>(bench.Cell("cell1").xpos() + 5);
  const auto y = static_cast<std::int16_t>(bench.Cell("cell1").ypos() + 5);
  bench.area.reset();
  bench.logic->MapMouseClick(x, y);
  // The three bad cells that still came died with the area, and so did their timers.
  EXPECT_EQ(bench.Screen(), "floor1hall1");
  EXPECT_TRUE(area.expired());
  EXPECT_EQ(bench.world.TimedObjects.Count(), 0u);
  bench.Tick(1000);
}

TEST(SubgameEnd, ASquareThatTimesOutInItsTickMayBeDroppedByTheOutcome) {
  SquareBench bench("1");
  bench.StartClinic(OnOutcome("gamelost", {"mtp subgame_game", "mtp cs_floor1hall1"}));
  auto area = Enter(bench);
  bench.area.reset();
  bench.Tick(3000);
  EXPECT_EQ(bench.Screen(), "floor1hall1");
  EXPECT_TRUE(area.expired());
}

TEST(SubgameEnd, AScriptOfATileMayLeaveTheGameInItsOwnClick) {
  SquareBench bench;
  Lines states{"default"};
  for (int tile = 1; tile <= 8; ++tile) states.push_back("t" + std::to_string(tile));
  // The parent of a tile is the board, from where the change of screen climbs.
  bench.PutCell("tile", 90, 90, states, false,
                "begin\nmtp cs_patient1\nmtp cs_floor1hall1\nmtp endgame\nend\n");
  bench.StartClinic("begin\nmtp nothing\nend\n");
  auto area = Enter(bench);
  bench.Tick(20);
  bench.area.reset();
  bench.logic->MapMouseClick(245, 95);
  EXPECT_EQ(bench.Screen(), "floor1hall1");
  EXPECT_TRUE(area.expired());
}

TEST(SubgameEnd, AScriptOfACellMayEndTheGameUnderTheClick) {
  BobblerBench bench;
  bench.PutCell("game\\gooddata", 20, 20, {"default", "bad"}, false,
                "begin\nif action = *handmouseclick\nmtp subgame_lost\nmtp stopgame\nendif\nend\n");
  bench.StartClinic("begin\nmtp nothing\nend\n");
  auto area = Enter(bench);
  bench.SpreadOut();
  const auto x = static_cast<std::int16_t>(bench.Cell("cell1").xpos() + 5);
  const auto y = static_cast<std::int16_t>(bench.Cell("cell1").ypos() + 5);
  bench.area.reset();
  bench.logic->MapMouseClick(x, y);
  EXPECT_EQ(bench.Screen(), "patient1");
}

TEST(SubgameEnd, AcceptingCellsWhileTheyAreWalkedIsSafe) {
  BobblerBench bench;
  bench.PutCell("game\\gooddata", 20, 20, {"default"}, true,
                "begin\nmtp select<objectname>\nmtp acceptedcell\nend\n");
  bench.StartGame();
  bench.Mouse(1, 1, "handmouseover");
  EXPECT_LT(bench.CellNames().size(), 30u);
  EXPECT_EQ(bench.Counter("m_colCells"), 30) << "this game keeps them in its list";
  bench.GameTick();
  bench.Click(100, 100);
}

TEST(SubgameEnd, AnOutcomeMayEnterTheSameGameAtOnce) {
  BlinkerBench bench;
  bench.StartClinic(OnOutcome("gamewon", {"mtp subgame_game"}));
  auto area = Enter(bench);
  bench.HideAllBricks();
  bench.area.reset();
  bench.Tick(50);
  ASSERT_EQ(bench.Screen(), "game");
  bench.TakeArea(bench.logic->CurrentScreen());
  EXPECT_NE(bench.area, area.lock());
  EXPECT_EQ(bench.Counter("m_colCells"), 32);
  EXPECT_EQ(bench.Counter("m_bStopped"), 1);
  bench.area->Send("startgame");
  bench.Tick(50);
  EXPECT_EQ(bench.Counter("m_nFireDelay"), 4) << "the new area has its own timer";
}

// A hall that holds a subgame stays in the cache: the same area is turned on anew inside the end of
// its own game.
template <class Bench>
void EnterCachedGame(Bench& bench, const std::string& outcome) {
  bench.StartClinic(OnOutcome(outcome, {"mtp subgame_floor1hall1"}));
  bench.PutObject("floor1hall1", "hall", {"\\info\\game.txt"});
  bench.logic->Send("subgame_floor1hall1");
  bench.TakeArea(*bench.logic->CurrentScreen()->Children().Find("game"));
  bench.area->Send("startgame");
}

TEST(SubgameEnd, ABobblerThatIsPreparedAnewInItsOwnTickKeepsItsNewCells) {
  BobblerBench bench;
  EnterCachedGame(bench, "gamewon");
  for (int i = 2; i <= 30; i += 2) bench.Cell("cell" + std::to_string(i)).SetVisible(false);
  bench.GameTick();
  EXPECT_EQ(bench.Screen(), "floor1hall1");
  EXPECT_EQ(bench.Counter("m_colCells"), 30);
  EXPECT_EQ(bench.Counter("m_bStopped"), 1);
}

TEST(SubgameEnd, ABobblerThatIsPreparedAnewInItsOwnClickGetsNoCellsOfTheOldGame) {
  BobblerBench bench;
  EnterCachedGame(bench, "gamelost");
  bench.SpreadOut();
  dynamic_cast<CellPlayArea&>(*bench.area).DecrementLife(4);
  bench.ClickCell(1);
  EXPECT_EQ(bench.Screen(), "floor1hall1");
  EXPECT_EQ(bench.Counter("m_colCells"), 30);
  EXPECT_EQ(bench.Counter("m_nCellCount"), 30);
}

TEST(SubgameEnd, AShooterThatIsPreparedAnewInItsOwnTickIsNotWonInIt) {
  ShooterBench bench;
  EnterCachedGame(bench, "gamelost");
  dynamic_cast<CellPlayArea&>(*bench.area).DecrementLife(1);
  bench.Tick(60 * 5);
  for (const char* name : {"cell21", "cell22"}) bench.Cell(name).SetVisible(false);
  auto& player = bench.Cell("cell111");
  auto& shot = bench.CellAs<CellObject_Shot>("shot1");
  shot.Reset();
  shot.SetVisible(true);
  shot.SetGoodCell(false);
  shot.Setxpos(static_cast<std::int16_t>(player.xpos() + 10));
  shot.Setypos(535);
  bench.Tick(60);
  EXPECT_EQ(bench.Screen(), "floor1hall1");
  EXPECT_EQ(bench.Counter("m_colCells"), 13);
  EXPECT_EQ(bench.Counter("m_nLives"), 2);
}

TEST(SubgameEnd, LeavingInTheMiddleAndComingBackBuildsTheFieldAnew) {
  BobblerBench bench;
  bench.StartClinic("begin\nmtp nothing\nend\n");
  Enter(bench);
  bench.logic->Send("screenprevious");
  EXPECT_EQ(bench.Screen(), "patient1");
  EXPECT_TRUE(bench.area->GameUpdateTimerID() == 0);
  bench.EnterSubgame();
  EXPECT_EQ(bench.Counter("m_colCells"), 30);
}

TEST(SubgameEnd, ReleasingARunningGameEndsItsTimers) {
  ShooterBench bench;
  bench.PutCell("enemy", 40, 30, {"default", "bad"}, true);
  bench.StartGame();
  EXPECT_EQ(bench.world.TimedObjects.Count(), 2u);
  bench.game->Release(true);
  EXPECT_TRUE(bench.backend.timers.Running().empty());
  EXPECT_EQ(bench.world.TimedObjects.Count(), 0u);
  bench.GameTick();
  bench.Click(10, 10);
}

TEST(SubgameEnd, AGlobalAreaSurvivesTheReleaseOfItsScreen) {
  BobblerBench bench;
  bench.StartGame();
  bench.world.GlobalObjects.Add(bench.area, "area");
  bench.area->Release(false);
  EXPECT_EQ(bench.Counter("m_colCells"), 30);
  bench.area->Release(true);
  EXPECT_EQ(bench.Counter("m_colCells"), 0);
}

}  // namespace
}  // namespace quendle
