#include "subgames/PlayAreaObject.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/TimerService.h"
#include "subgames/CellPlayArea.h"
#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

bool Has(const Lines& lines, const std::string& line) {
  return std::ranges::find(lines, line) != lines.end();
}

TimerInfo OnlyTimer(SubgameBench& bench) {
  const auto running = bench.backend.timers.Running();
  return running.size() == 1 ? running.front() : TimerInfo{};
}

TEST(PlayAreaFiles, NothingInTheSixthLineLoadsNoGameData) {
  SubgameBench bench("playareablinker", "NOTHING");
  bench.LoadGame();
  ASSERT_NE(bench.area, nullptr);
  EXPECT_TRUE(bench.area->Children().Empty());
}

TEST(PlayAreaFiles, WithoutASixthLineAnywhereTheLoadIsFatal) {
  SubgameBench bench("playareablinker", "");
  EXPECT_EQ(FatalOf([&] { bench.LoadGame(); }),
            "Info\\area\\data.txt:6: play area \"area\" needs the path of its game's data, or "
            "\"nothing\": a sixth line of this file");
}

TEST(PlayAreaFiles, ThePathMayStandInTheObjectFile) {
  BobblerBench bench;
  bench.files.Put("\\Info\\area\\header.txt", Text({"text", "7", "1", "nothing", "", ""}));
  bench.PutObject("area", "playareabobbler");
  bench.files.Put("\\info\\area.txt", Text({"playareabobbler", "area", "0", "zero", "",
                                            "<CurrentDirectory>\\header.txt",
                                            "\\Info\\area\\data.txt", "nothing", ""}));
  bench.LoadGame();
  EXPECT_NE(bench.area, nullptr);
  bench.files.Remove("\\Info\\area\\header.txt");
  EXPECT_EQ(FatalOf([&] { bench.LoadGame(); }),
            "Info\\area\\header.txt: File \\Info\\area\\header.txt not found");
}

TEST(PlayAreaFiles, ThePathOfTheDataFileHoldsBeforeThatOfTheObjectFile) {
  SubgameBench bench("playareabobbler", "nothing");
  bench.files.Put("\\info\\area.txt",
                  Text({"playareabobbler", "area", "0", "0", "0", "\\info\\nosuch.txt",
                        "\\Info\\area\\data.txt", "nothing", ""}));
  bench.LoadGame();
  EXPECT_NE(bench.area, nullptr);
}

TEST(PlayAreaFiles, TokensGoByTheAreasOwnFolder) {
  BobblerBench bench;
  bench.files.Put("\\Info\\area\\header.txt", Text({"text", "7", "1", "nothing", "", ""}));
  bench.PutObject("area", "playareabobbler", {}, "", "<CurrentDirectory>\\header.txt");
  bench.LoadGame();
  EXPECT_NE(bench.area, nullptr);
}

TEST(PlayAreaFiles, TheDirectiveLineOfAnAreaHasNoEffect) {
  BobblerBench bench;
  bench.files.Put("\\info\\area.txt",
                  Text({"playareabobbler", "area", "0", "0", "0", "0", "\\Info\\area\\data.txt",
                        "nothing", "xpos_7 visible_off"}));
  bench.LoadGame();
  EXPECT_EQ(bench.area->xpos(), 0);
  EXPECT_TRUE(bench.area->Visible());
}

TEST(PlayAreaFiles, ChildrenOfItsListAreKeptApart) {
  SubgameBench bench("playareablinker", "nothing");
  bench.PutObject("area", "playareablinker", {"\\info\\Play1.txt"}, "", "nothing");
  bench.LoadGame();
  EXPECT_TRUE(bench.area->Children().Empty());
}

TEST(PlayAreaFiles, ACellMayBeNamedByAnObjectFile) {
  ShooterBench bench;
  bench.files.Put("\\info\\cells.txt",
                  Text({"\\info\\player.txt", "\\info\\sub\\enemyobject.txt", "\\info\\shot.txt"}));
  bench.files.Put("\\info\\sub\\enemyobject.txt",
                  Text({"button", "other", "0", "x", "y", "z", "<PreviousDirectory>\\enemy.txt",
                        "\\info\\nosuch.txt", "visible_off xpos_5"}));
  bench.TurnOnGame();
  EXPECT_EQ(bench.Cell("cell21").width(), 40);
  EXPECT_EQ(bench.Cell("cell21").ObjectType(), "cell2") << "type and name come from the game";
}

TEST(PlayAreaTimer, EachGameHasItsPeriod) {
  BlinkerBench blinker;
  blinker.TurnOnGame();
  EXPECT_EQ(OnlyTimer(blinker).interval.count(), 50);
  EXPECT_EQ(OnlyTimer(blinker).callback, "OnBlinkerTimer");
  BobblerBench bobbler;
  bobbler.settings.DifficultyLevel = "Hard";
  bobbler.TurnOnGame();
  EXPECT_EQ(OnlyTimer(bobbler).interval.count(), 75);
  EXPECT_EQ(OnlyTimer(bobbler).callback, "OnBobblerTimer");
  SquareBench square;
  square.TurnOnGame();
  EXPECT_EQ(OnlyTimer(square).interval.count(), 10) << "asked for 1, given the shortest";
  EXPECT_EQ(OnlyTimer(square).callback, "OnSquareTimer");
}

TEST(PlayAreaTimer, OnlyTheShooterKnowsTheDifficulty) {
  for (const auto& [level, period] :
       {std::pair{"Hard", 50}, std::pair{"hard", 50}, std::pair{"Easy", 60}}) {
    ShooterBench bench;
    bench.settings.DifficultyLevel = level;
    bench.TurnOnGame();
    EXPECT_EQ(OnlyTimer(bench).interval.count(), period) << level;
    EXPECT_EQ(OnlyTimer(bench).callback, "OnShooterTimer");
  }
}

TEST(PlayAreaTimer, TurningOffEndsItAndClearsTheId) {
  BlinkerBench bench;
  bench.TurnOnGame();
  EXPECT_EQ(bench.area->GameUpdateTimerID(), OnlyTimer(bench).id);
  bench.game->TurnOff();
  EXPECT_EQ(bench.area->GameUpdateTimerID(), 0);
  EXPECT_TRUE(bench.backend.timers.Running().empty());
}

TEST(PlayAreaTimer, AStaleIdDoesNotTick) {
  BlinkerBench bench;
  bench.StartGame();
  const long before = bench.Counter("m_nFireDelay");
  bench.area->SetGameUpdateTimerID(99);
  bench.Tick(50);
  EXPECT_EQ(bench.Counter("m_nFireDelay"), before);
  bench.area->SetGameUpdateTimerID(1);
  bench.Tick(50);
  EXPECT_EQ(bench.Counter("m_nFireDelay"), before - 1);
}

TEST(PlayAreaTimer, ItRunsWithoutTheFocus) {
  BlinkerBench bench;
  bench.StartGame();
  bench.world.GameActive = false;
  bench.Tick(50);
  EXPECT_EQ(bench.Counter("m_nFireDelay"), 4);
}

TEST(PlayAreaTimer, AnAreaThatIsDroppedLeavesNoTimer) {
  BlinkerBench bench;
  bench.StartGame();
  bench.area.reset();
  bench.game.reset();
  EXPECT_TRUE(bench.backend.timers.Running().empty());
  bench.Tick(200);
}

TEST(PlayAreaTimer, AnAreaThatWasTakenOutOfItsFrameTakesItsTimerAlong) {
  BlinkerBench bench;
  bench.StartGame();
  bench.game->Children().Remove("area");
  bench.area.reset();
  EXPECT_TRUE(bench.backend.timers.Running().empty());
}

TEST(PlayAreaTimer, AnAreaThatIsTurnedOnTwiceHasOneTimer) {
  BlinkerBench bench;
  bench.StartGame();
  bench.game->TurnOn();
  EXPECT_EQ(bench.backend.timers.Running().size(), 1u);
  EXPECT_EQ(OnlyTimer(bench).id, bench.area->GameUpdateTimerID());
}

TEST(PlayAreaTimer, TwoAreasOfOneGameDoNotTickEachOther) {
  BlinkerBench bench;
  bench.StartGame();
  auto first = bench.area;
  ObjectRef first_game = bench.game;
  bench.StartGame();
  bench.Tick(100);
  EXPECT_EQ(SubgameBench::Number(*first, "m_nFireDelay"), 5)
      << "the slot holds the area that started its timer last";
  EXPECT_EQ(bench.Counter("m_nFireDelay"), 3);
}

TEST(PlayAreaMessages, TurningOnPreparesAGameAndShowsThePlayButton) {
  BlinkerBench bench;
  bench.LoadGame();
  (*bench.game->Children().Find("Play1"))->SetVisible(false);
  bench.game->TurnOn();
  EXPECT_TRUE(bench.IsShown("Play1"));
  EXPECT_EQ(bench.Counter("m_bStopped"), 1);
}

TEST(PlayAreaMessages, StartGameIsTheWholeTextInAnyCase) {
  BlinkerBench bench;
  bench.TurnOnGame();
  bench.area->Send("restartgame");
  bench.area->Send("xstartgame");
  EXPECT_EQ(bench.Counter("m_bStopped"), 1);
  bench.area->Send("StartGame");
  EXPECT_EQ(bench.Counter("m_bStopped"), 0);
}

TEST(PlayAreaMessages, StopGameMayStandAnywhere) {
  BlinkerBench bench;
  bench.StartGame();
  (*bench.game->Children().Find("Play1"))->SetVisible(false);
  bench.area->Send("pleasestopgamenow");
  EXPECT_EQ(bench.Counter("m_bStopped"), 1);
  EXPECT_TRUE(bench.IsShown("Play1"));
  EXPECT_FALSE(bench.Cell("cell1").Visible());
  bench.area->Send("startgame");
  EXPECT_TRUE(bench.Cell("cell1").Visible());
}

TEST(PlayAreaMessages, StoppingGoesBackToTheFirstState) {
  BlinkerBench bench;
  bench.files.Put("\\Info\\area\\states.txt",
                  Text({"default", "nothing", "nothing", "nothing", "", "",  //
                        "busy", "nothing", "nothing", "nothing", "", ""}));
  bench.StartGame();
  bench.area->ProcessState("busy");
  bench.area->Send("stopgame");
  EXPECT_EQ(bench.area->CurrentState(), "default");
}

TEST(PlayAreaMessages, StopGameDoesNothingWhileNoGameRuns) {
  BlinkerBench bench;
  bench.TurnOnGame();
  (*bench.game->Children().Find("Play1"))->SetVisible(false);
  bench.area->Send("stopgame");
  EXPECT_FALSE(bench.IsShown("Play1"));
}

TEST(PlayAreaMessages, OnlyTheSquareGameKnowsEndGame) {
  BlinkerBench bench;
  bench.StartGame();
  bench.area->Send("endgame");
  EXPECT_EQ(bench.top->messages, Lines{"endgame"}) << "it climbs as any unknown word";
}

TEST(PlayAreaMessages, VerifyingChangesNothing) {
  BlinkerBench bench;
  bench.TurnOnGame();
  for (const char* message : {"startgame", "replaygame", "selectx", "acceptedcell"}) {
    bool result = true;
    bench.area->HandleMessage(message, nullptr, true, result);
    EXPECT_TRUE(result) << message;
  }
  EXPECT_EQ(bench.Counter("m_bStopped"), 1);
  EXPECT_EQ(bench.Counter("m_nRunState"), 1);
  EXPECT_EQ(bench.TextField(*bench.area, "m_strSelected"), "");
}

TEST(PlayAreaMessages, ATraceShowsTheMessagesThatAnAreaTakes) {
  struct Noted : Tracer {
    void Trace(const TraceEvent& event) override { texts.emplace_back(event.text); }
    Lines texts;
  } tracer;
  BlinkerBench bench;
  bench.TurnOnGame();
  bench.watch.tracer = &tracer;
  bench.area->Send("startgame");
  EXPECT_TRUE(Has(tracer.texts, "startgame"));
}

TEST(PlayAreaSelection, SelectKeepsWhatIsLeftOfTheMessage) {
  BlinkerBench bench;
  bench.TurnOnGame();
  bench.area->Send("Selectcell3-a");
  EXPECT_EQ(bench.TextField(*bench.area, "m_strSelected"), "cell3-a");
  bench.area->Send("cellselectselect");
  EXPECT_EQ(bench.TextField(*bench.area, "m_strSelected"), "cellselect") << "the first is cut";
}

TEST(PlayAreaSelection, ASelectionWithADashResetsItsCellAtTheNextOne) {
  BlinkerBench bench;
  bench.TurnOnGame();
  bench.Cell("cell3").ProcessState("bad");
  bench.Cell("cell4").ProcessState("bad");
  bench.area->Send("selectcell3-a");
  EXPECT_EQ(bench.Cell("cell3").CurrentState(), "bad");
  bench.area->Send("selectcell4");
  EXPECT_EQ(bench.Cell("cell3").CurrentState(), "default");
  bench.area->Send("selectcell5");
  EXPECT_EQ(bench.Cell("cell4").CurrentState(), "bad") << "without a dash nothing is reset";
}

TEST(PlayAreaSelection, AnAcceptedCellLeavesTheFieldButStaysInTheBlinkersList) {
  BlinkerBench bench;
  bench.TurnOnGame();
  ObjectRef cell = *bench.area->Children().Find("cell3");
  EXPECT_TRUE(cell->ObjectOn());
  bench.area->Send("selectcell3-a");
  bench.area->Send("acceptedcell");
  EXPECT_FALSE(cell->ObjectOn());
  EXPECT_FALSE(Has(bench.CellNames(), "cell3"));
  EXPECT_EQ(bench.Counter("m_colCells"), 32);
  EXPECT_EQ(bench.TextField(*bench.area, "m_strSelected"), "");
  EXPECT_TRUE(bench.top->messages.empty());
}

TEST(PlayAreaSelection, TheShooterRetiresAnAcceptedCellAndIsDoneWithoutCells) {
  ShooterBench bench;
  bench.StartGame();
  EXPECT_EQ(bench.Counter("m_colCells"), 13);
  for (const std::string& name : bench.CellNames()) {
    EXPECT_TRUE(bench.top->messages.empty());
    bench.area->Send("select" + name);
    bench.area->Send("acceptedcell");
    bench.GameTick();
    bench.Click(400, 300);
    if (!bench.top->messages.empty()) break;
  }
  EXPECT_TRUE(Has(bench.top->messages, "subgamedone") || Has(bench.top->messages, "subgame_won"));
}

TEST(PlayAreaSelection, AShooterWithoutCellsIsDone) {
  ShooterBench bench;
  bench.TurnOnGame();
  for (const std::string& name : bench.CellNames()) {
    bench.area->Send("select" + name);
    bench.area->Send("acceptedcell");
  }
  EXPECT_EQ(bench.Counter("m_colCells"), 0);
  EXPECT_EQ(bench.Counter("m_colRetired"), 13);
  EXPECT_EQ(bench.top->messages, Lines{"subgamedone"});
}

TEST(PlayAreaMouse, NothingIsReachedWhileNoGameRuns) {
  ShooterBench bench;
  bench.TurnOnGame();
  bench.Mouse(100, 100, "handmouseover");
  EXPECT_EQ(SubgameBench::Number(bench.Cell("cell111"), "XGoal"), 400);
}

TEST(PlayAreaMouse, OtherMessagesAreIgnored) {
  BobblerBench bobbler;
  bobbler.PutCell("game\\gooddata", 20, 20, {"default", "bad"}, false,
                  "begin\nif action = *\nchange bad\nendif\nend\n");
  bobbler.StartGame();
  bobbler.Mouse(1, 1, "handmousedown");
  EXPECT_EQ(bobbler.Cell("cell1").CurrentState(), "default");
  bobbler.Mouse(1, 1, "handmouseover");
  EXPECT_EQ(bobbler.Cell("cell1").CurrentState(), "bad") << "cells' scripts see the pointer";
}

TEST(PlayAreaMouse, AGameThatACellsScriptStopsTakesNothingMoreOfTheClick) {
  ShooterBench bench;
  bench.PutCell("player", 40, 30, {"default", "bad"}, false,
                "begin\nif action = *mouseclick\nmtp stopgame\nendif\nend\n");
  bench.StartGame();
  for (int i = 0; i < 5; ++i) {
    bench.NoFire(2);
    bench.GameTick();
  }
  bench.Click(405, 540);
  EXPECT_EQ(bench.Counter("m_bStopped"), 1);
  EXPECT_EQ(bench.Counter("m_nFireDelay"), 0) << "nothing was fired";
}

TEST(PlayAreaMouse, TheSelectionIsAppendedToTheMessage) {
  BobblerBench bench;
  bench.PutCell("game\\gooddata", 20, 20, {"default", "bad"}, false,
                "begin\nif action = *mouseoverringnot\nchange bad\nendif\nend\n");
  bench.StartGame();
  bench.Mouse(1, 1, "handmouseover");
  EXPECT_EQ(bench.Cell("cell1").CurrentState(), "default");
  bench.area->Send("selectring");
  bench.Mouse(1, 1, "handmouseover");
  EXPECT_EQ(bench.Cell("cell1").CurrentState(), "bad");
}

TEST(PlayAreaMouse, CellsOfAMovedAreaAreHitAtTwiceItsPosition) {
  BobblerBench bench;
  bench.PutCell("game\\gooddata", 20, 20, {"default", "bad"}, false,
                "begin\nif action = handmouseover\nchange bad\nendif\nend\n");
  bench.StartGame();
  bench.area->Setxpos(100);
  bench.Cell("cell1").Setxpos(10);
  bench.Cell("cell1").Setypos(10);
  bench.Mouse(115, 15, "handmouseover");
  EXPECT_EQ(bench.Cell("cell1").CurrentState(), "default");
  bench.Mouse(215, 15, "handmouseover");
  EXPECT_EQ(bench.Cell("cell1").CurrentState(), "bad");
}

TEST(PlayAreaLife, CellsLeftBehindGoWhenTheAreaIsTurnedOnAgain) {
  ShooterBench shooter;
  shooter.StartGame();
  shooter.game->TurnOff();
  shooter.game->TurnOn();
  EXPECT_EQ(shooter.Counter("m_colCells"), 13);
  BlinkerBench blinker;
  blinker.StartGame();
  blinker.game->TurnOff();
  blinker.game->TurnOn();
  EXPECT_EQ(blinker.Counter("m_colCells"), 32);
  BobblerBench bobbler;
  bobbler.StartGame();
  bobbler.game->TurnOff();
  bobbler.game->TurnOn();
  EXPECT_EQ(bobbler.Counter("m_colCells"), 30);
}

TEST(PlayAreaLife, AnimatedCellsThatAreDroppedLeaveNoTimers) {
  BobblerBench bench;
  bench.PutCell("game\\gooddata", 20, 20, {"default", "bad"}, true);
  bench.StartGame();
  EXPECT_EQ(bench.world.TimedObjects.Count(), 15u);
  bench.area->EndGame(true);
  EXPECT_EQ(bench.world.TimedObjects.Count(), 0u);
  EXPECT_EQ(bench.backend.timers.Running().size(), 1u) << "the game's own";
}

TEST(PlayAreaLife, DecrementLifeTakesTheAbsoluteValue) {
  ShooterBench bench;
  bench.TurnOnGame();
  auto& area = dynamic_cast<CellPlayArea&>(*bench.area);
  area.DecrementLife(-1);
  EXPECT_EQ(bench.Counter("m_nLives"), 1);
  area.DecrementLife(1);
  EXPECT_EQ(bench.Counter("m_nLives"), 0);
}

}  // namespace
}  // namespace quendle
