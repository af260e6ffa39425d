// What a running game does at its ticks and at messages, and what stands still when it doesn't run.
#include <gtest/gtest.h>

#include "subgames/CellObject_Shooter.h"
#include "subgames/CellObject_Shot.h"
#include "subgames/CellPlayArea.h"
#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

// What stands at the moment in which the play button is shown.
template <class Bench>
void ExpectCellsBeforeTheButton(std::size_t cells) {
  struct NotedMoment : Tracer {
    explicit NotedMoment(Bench& watched) : bench(watched) { bench.watch.tracer = this; }
    ~NotedMoment() override { bench.watch.tracer = nullptr; }
    void Trace(const TraceEvent& event) override {
      if (event.kind != TraceKind::kMessage || event.text != "showobj_Play1" || events++ > 0)
        return;
      cells = bench.area->Children().Count();
      timers = bench.backend.timers.Running().size();
    }
    Bench& bench;
    int events = 0;
    std::size_t cells = 0;
    std::size_t timers = 0;
  };
  Bench bench;
  bench.LoadGame();
  NotedMoment moment(bench);
  bench.game->TurnOn();
  EXPECT_GT(moment.events, 0);
  EXPECT_EQ(moment.cells, cells);
  EXPECT_EQ(moment.timers, 0u) << "the clock begins to run last";
}

TEST(PreparedGame, HasItsCellsBeforeThePlayButtonIsShown) {
  ExpectCellsBeforeTheButton<ShooterBench>(13);
  ExpectCellsBeforeTheButton<BlinkerBench>(34);
  ExpectCellsBeforeTheButton<BobblerBench>(30);
}

TEST(RunningGame, IsNotStartedAgain) {
  BlinkerBench bench;
  bench.StartGame();
  bench.Cell("cell7").SetVisible(false);
  bench.area->Send("replaygame");
  bench.area->Send("startgame");
  EXPECT_FALSE(bench.Cell("cell7").Visible()) << "a start shows all cells";
  EXPECT_EQ(bench.Counter("m_nRunState"), 2) << "a start lets the ticks run";
}

TEST(RunningGame, PausesAndGoesOnAtMessagesThatHoldTheWords) {
  BlinkerBench bench;
  bench.StartGame();
  bench.area->Send("pleaseReplayGameNow");
  EXPECT_EQ(bench.Counter("m_nRunState"), 2);
  bench.area->Send("andRestartGameThen");
  EXPECT_EQ(bench.Counter("m_nRunState"), 1);
  EXPECT_EQ(bench.top->messages, Lines{}) << "both are taken here";
}

TEST(RunningGame, CountsDownItsDelayOnlyWhileItRuns) {
  ShooterBench shooter;
  const auto ticks = [](SubgameBench& bench, int count) {
    for (int i = 0; i < count; ++i) bench.GameTick();
    return bench.Counter("m_nFireDelay");
  };
  shooter.TurnOnGame();
  EXPECT_EQ(ticks(shooter, 3), 5) << "before the start";
  shooter.area->Send("startgame");
  EXPECT_EQ(ticks(shooter, 2), 3);
  shooter.area->Send("stopgame");
  EXPECT_EQ(ticks(shooter, 2), 3) << "after the stop";

  BlinkerBench blinker;
  blinker.TurnOnGame();
  EXPECT_EQ(ticks(blinker, 3), 5);
  blinker.area->Send("startgame");
  EXPECT_EQ(ticks(blinker, 1), 4);
  blinker.area->Send("replaygame");
  EXPECT_EQ(ticks(blinker, 2), 4) << "while a ball is lost";
}

TEST(RunningGame, LeavesAnInvisibleEnemyWhereItIs) {
  ShooterBench bench;
  bench.StartGame();
  bench.GameTick();
  auto& hidden = bench.CellAs<CellObject_Shooter>("cell21");
  hidden.SetVisible(false);
  hidden.SetHitRecently(2);
  const int x = hidden.xpos();
  const long offset = bench.Number(hidden, "side offset");
  const int seeds = bench.backend.random.Seeds();
  bench.GameTick();
  EXPECT_EQ(hidden.xpos(), x);
  EXPECT_EQ(bench.Number(hidden, "side offset"), offset);
  EXPECT_EQ(hidden.HitRecently(), 2);
  EXPECT_EQ(bench.backend.random.Seeds(), seeds + 1) << "only the other one may fire";
}

TEST(RunningGame, IsLostByAHitThatFindsNoLifeLeft) {
  ShooterBench bench;
  bench.StartGame();
  bench.GameTick();
  dynamic_cast<CellPlayArea&>(*bench.area).DecrementLife(5);
  auto& player = bench.Cell("cell111");
  auto& shot = bench.CellAs<CellObject_Shot>("shot1");
  shot.SetVisible(true);
  shot.SetGoodCell(false);
  shot.Setxpos(static_cast<std::int16_t>(player.xpos() + 10));
  shot.Setypos(535);
  bench.GameTick();
  EXPECT_EQ(bench.Counter("m_nLives"), -4);
  EXPECT_EQ(bench.top->messages, Lines{"subgame_lost"});
}

// Only the whole word, in any case, takes a cell back to its first state.
void ExpectResetByTheWholeWord(SubgameBench& bench, const Lines& cells, const std::string& state) {
  for (const std::string& name : cells) {
    auto& cell = bench.Cell(name);
    for (const char* message : {"resetall", "xreset", "reset_"}) {
      cell.ProcessState(state);
      cell.Send(message);
      EXPECT_EQ(cell.CurrentState(), state) << name << " at " << message;
    }
    cell.Send("Reset");
    EXPECT_EQ(cell.CurrentState(), "default") << name;
  }
}

TEST(CellsOfAGame, AreResetByExactlyThatWord) {
  SquareBench square;
  square.StartGame();
  ExpectResetByTheWholeWord(square, {"Square1"}, "t3");
  ShooterBench shooter;
  shooter.TurnOnGame();
  ExpectResetByTheWholeWord(shooter, {"cell21", "shot1", "cell111"}, "bad");
  BlinkerBench blinker;
  blinker.TurnOnGame();
  ExpectResetByTheWholeWord(blinker, {"cell1", "shot1", "paddle1"}, "bad");
  BobblerBench bobbler;
  bobbler.TurnOnGame();
  ExpectResetByTheWholeWord(bobbler, {"cell1"}, "bad");
}

// A game that lacks one of its files ends in the box that names the file.
template <class Bench>
void ExpectMissing(const std::string& file) {
  Bench bench;
  bench.files.Remove("\\" + file);
  EXPECT_EQ(FatalOf([&bench] { bench.StartGame(); }), file + ": File \\" + file + " not found");
}

TEST(FilesOfAGame, AreMissedEach) {
  ExpectMissing<SquareBench>("info\\board.txt");
  ExpectMissing<SquareBench>("info\\tile.txt");
  ExpectMissing<ShooterBench>("info\\header.txt");
  ExpectMissing<ShooterBench>("info\\cells.txt");
  ExpectMissing<ShooterBench>("info\\shooterdata.txt");
  ExpectMissing<ShooterBench>("info\\player.txt");
  ExpectMissing<ShooterBench>("info\\enemy.txt");
  ExpectMissing<ShooterBench>("info\\shot.txt");
  ExpectMissing<BlinkerBench>("info\\game\\cell5data.txt");
  ExpectMissing<BlinkerBench>("info\\game\\paddledata.txt");
  ExpectMissing<BobblerBench>("info\\game\\gooddata.txt");
  ExpectMissing<BobblerBench>("info\\game\\cell1data.txt");
}

}  // namespace
}  // namespace quendle
