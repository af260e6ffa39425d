#include <gtest/gtest.h>

#include "subgames/CellObject_Square.h"
#include "subgames/PlayAreaObject_Square.h"
#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

const std::vector<int> kOrdered{1, 2, 3, 4, 5, 6, 7, 8};

struct SquareGame : testing::Test {
  void Start(const std::vector<int>& tiles) {
    bench.TurnOnGame();
    bench.QueueTiles(tiles);
    bench.area->Send("startgame");
    bench.GameTick();
  }
  // In the middle of a place, counted from 1.
  void ClickPlace(int place) {
    bench.Click(200 + (place - 1) % 3 * 100 + 45, 50 + (place - 1) / 3 * 100 + 45);
  }
  void Ticks(int count) {
    for (int i = 0; i < count; ++i) bench.GameTick();
  }
  // "x,y" of the tile made for a place.
  std::string Position(int place) {
    auto& tile = bench.Cell("Square" + std::to_string(place));
    return std::to_string(tile.xpos()) + "," + std::to_string(tile.ypos());
  }
  bool Animating() { return bench.Counter("m_bAnimating") != 0; }

  SquareBench bench;
};

TEST_F(SquareGame, TurningOnTellsTheScreenItsButtons) {
  bench.LoadGame();
  for (const char* name : {"Play1", "Help1"}) (*bench.game->Children().Find(name))->SetVisible(0);
  bench.game->TurnOn();
  EXPECT_TRUE(bench.IsShown("Play1"));
  EXPECT_TRUE(bench.IsShown("Help1"));
  EXPECT_FALSE(bench.IsShown("HOK1"));
  EXPECT_FALSE(bench.IsShown("EOK1"));
  EXPECT_FALSE(bench.IsShown("Scoring1"));
  EXPECT_TRUE(bench.CellNames().empty()) << "no tile exists yet";
}

TEST_F(SquareGame, TilesAreDrawnAndLaidOutAtTheStart) {
  Start({8, 7, 6, 5, 4, 3, 2, 1});
  EXPECT_EQ(bench.Board(), "8 7 6 5 4 3 2 1 0");
  EXPECT_EQ(bench.Cell("Square1").CurrentState(), "t8");
  EXPECT_EQ(bench.Cell("Square1").ObjectType(), "Square1");
  EXPECT_EQ(Position(1), "200,50");
  EXPECT_EQ(Position(6), "400,150");
  EXPECT_EQ(bench.CellNames().size(), 8u);
  EXPECT_EQ(bench.Counter("cell width"), 90);
}

TEST_F(SquareGame, ATileNumberThatIsTakenIsDrawnAgain) {
  Start({1, 1, 1, 2, 2, 3, 4, 5, 6, 7, 8});
  EXPECT_EQ(bench.Board(), "1 2 3 4 5 6 7 8 0");
}

TEST_F(SquareGame, NoSeedIsSetAtTheStart) {
  Start(kOrdered);
  EXPECT_EQ(bench.backend.random.Seeds(), 0);
}

TEST_F(SquareGame, ATileBesideTheGapSlidesInSevenTicksWithInputClosed) {
  Start(kOrdered);
  ClickPlace(6);
  EXPECT_EQ(bench.Board(), "1 2 3 4 5 0 7 8 6");
  EXPECT_TRUE(Animating());
  ClickPlace(5);
  EXPECT_EQ(bench.LastSound(bench.Cell("Square5")), "") << "input is closed";
  bench.GameTick();
  EXPECT_EQ(Position(6), "400,150") << "step 0 shows the old place";
  bench.GameTick();
  EXPECT_EQ(Position(6), "400,164");
  Ticks(5);
  EXPECT_EQ(Position(6), "400,236") << "the last step stops short by a seventh";
  EXPECT_FALSE(Animating());
  bench.GameTick();
  EXPECT_EQ(Position(6), "400,250");
}

TEST_F(SquareGame, ATileWithoutAFreeNeighbourWigglesInThreeMovesOfThreeTicks) {
  Start(kOrdered);
  bench.Queue({0.0, 0.999, 0.5, 0.5});
  ClickPlace(1);
  EXPECT_EQ(bench.LastSound(bench.Cell("Square1")), "owww");
  EXPECT_EQ(bench.Board(), "1 2 3 4 5 6 7 8 0");
  EXPECT_EQ(bench.Counter("m_nWiggles"), 2);
  EXPECT_EQ(bench.Counter("m_nWigglePos"), 0);
  EXPECT_EQ(bench.TextField(*bench.area, "m_ptrWiggleCell"), "Square1");
  EXPECT_EQ(bench.Number(bench.Cell("Square1"), "goal x"), 175);
  EXPECT_EQ(bench.Number(bench.Cell("Square1"), "goal y"), 75);
  Ticks(3);
  EXPECT_EQ(bench.Counter("m_nWiggles"), 1);
  EXPECT_EQ(bench.Number(bench.Cell("Square1"), "goal x"), 200);
  Ticks(3);
  EXPECT_EQ(bench.Counter("m_nWiggles"), 0);
  EXPECT_TRUE(Animating());
  Ticks(2);
  EXPECT_TRUE(Animating());
  Ticks(1);
  EXPECT_FALSE(Animating());
  Ticks(1);
  EXPECT_EQ(Position(1), "200,50");
}

TEST_F(SquareGame, ATileInTheFirstColumnDoesNotGoToTheEndOfTheRowAbove) {
  Start(kOrdered);
  ClickPlace(6);
  Ticks(8);
  ClickPlace(7);  // place 6, the end of the row above, is free
  EXPECT_EQ(bench.Board(), "1 2 3 4 5 0 7 8 6");
  EXPECT_EQ(bench.Counter("m_nWiggles"), 2);
}

TEST_F(SquareGame, ATileInTheLastColumnDoesNotGoToTheStartOfTheRowBelow) {
  Start(kOrdered);
  for (int place : {8, 7}) {
    ClickPlace(place);
    Ticks(8);
  }
  EXPECT_EQ(bench.Board(), "1 2 3 4 5 6 0 7 8");
  ClickPlace(6);  // place 7 is free
  EXPECT_EQ(bench.Board(), "1 2 3 4 5 6 0 7 8");
  EXPECT_EQ(bench.Counter("m_nWiggles"), 2);
}

TEST_F(SquareGame, TilesSlideInAllFourDirections) {
  Start(kOrdered);
  for (const auto& [place, board] :
       {std::pair{8, "1 2 3 4 5 6 7 0 8"}, std::pair{5, "1 2 3 4 0 6 7 5 8"},
        std::pair{6, "1 2 3 4 6 0 7 5 8"}, std::pair{9, "1 2 3 4 6 8 7 5 0"}}) {
    ClickPlace(place);
    EXPECT_EQ(bench.Board(), board);
    Ticks(8);
  }
}

TEST_F(SquareGame, AStateThatIsNotInTheListSoundsAndDoesNothing) {
  Start(kOrdered);
  bench.Cell("Square6").ProcessState("default");
  ClickPlace(6);
  EXPECT_EQ(bench.LastSound(bench.Cell("Square6")), "owww");
  EXPECT_EQ(bench.Board(), "1 2 3 4 5 6 7 8 0");
  EXPECT_FALSE(Animating());
}

TEST_F(SquareGame, TheEdgesOfATileAreClosedSoThatTwoCanSound) {
  SquareBench touching("120", {"3", "90", "200", "50"});
  touching.TurnOnGame();
  touching.QueueTiles(kOrdered);
  touching.area->Send("startgame");
  touching.GameTick();
  touching.Click(290, 80);
  EXPECT_EQ(touching.LastSound(touching.Cell("Square1")), "owww");
  EXPECT_EQ(touching.LastSound(touching.Cell("Square2")), "owww");
  EXPECT_EQ(touching.TextField(*touching.area, "m_ptrWiggleCell"), "Square1");
}

TEST_F(SquareGame, APressCountsAsAClickAndAMoveDoesNot) {
  Start(kOrdered);
  bench.Mouse(445, 195, "handmouseover");
  bench.Mouse(445, 195, "handmouseup");
  EXPECT_FALSE(Animating());
  bench.Mouse(445, 195, "handmousedown");
  EXPECT_TRUE(Animating());
}

TEST_F(SquareGame, ATilesScriptSeesThePointRelativeToTheTile) {
  Lines states{"default"};
  for (int tile = 1; tile <= 8; ++tile) states.push_back("t" + std::to_string(tile));
  states.push_back("seen");
  bench.PutCell("tile", 90, 90, states, false,
                "begin\nif action = handmouseclick\nchange seen\nendif\nend\n");
  Start(kOrdered);
  // The tile's own position is taken off, and its hit test takes it off again.
  ClickPlace(6);
  EXPECT_EQ(bench.Cell("Square6").CurrentState(), "t6");
}

TEST_F(SquareGame, AnOrderedBoardFliesOutAndWinsAfterTwoSeconds) {
  bench.backend.clock.SetTimeOfDay(1000);
  Start(kOrdered);
  ClickPlace(6);
  Ticks(8);
  ClickPlace(9);
  bench.Queue(std::vector<double>(24, 0.25));
  Ticks(7);
  EXPECT_EQ(bench.Counter("m_bSolved"), 1);
  EXPECT_EQ(bench.Number(bench.Cell("Square1"), "goal x"), -25);
  EXPECT_EQ(bench.Number(bench.Cell("Square1"), "goal y"), 150);
  EXPECT_EQ(bench.Number(bench.Cell("Square1"), "steps"), 10);
  EXPECT_FALSE(Animating());
  bench.backend.clock.SetTimeOfDay(1002);
  bench.GameTick();
  EXPECT_TRUE(bench.top->messages.empty()) << "more than two seconds are needed";
  bench.backend.clock.SetTimeOfDay(1002.1);
  bench.GameTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_won"});
  EXPECT_TRUE(bench.CellNames().empty());
  EXPECT_EQ(bench.Counter("m_bStopped"), 1);
}

TEST_F(SquareGame, TilesFlyOutOnBothSides) {
  Start(kOrdered);
  ClickPlace(6);
  Ticks(8);
  ClickPlace(9);
  bench.Queue({0.5, 0.25, 0.5, 0.49, 0.25, 0.5});
  Ticks(7);
  EXPECT_EQ(bench.Number(bench.Cell("Square1"), "goal x"), 825);
  EXPECT_EQ(bench.Number(bench.Cell("Square1"), "goal y"), 300);
  EXPECT_EQ(bench.Number(bench.Cell("Square2"), "goal x"), -25);
}

TEST_F(SquareGame, ASolvedBoardTakesNoMoreClicks) {
  Start(kOrdered);
  ClickPlace(6);
  Ticks(8);
  ClickPlace(9);
  Ticks(7);
  dynamic_cast<PlayAreaObject_Square&>(*bench.area)
      .SquareClicked(bench.CellAs<CellObject_Square>("Square8"), "t8");
  EXPECT_EQ(bench.Board(), "1 2 3 4 5 6 7 8 0");
}

TEST_F(SquareGame, TheLimitLoses) {
  bench.backend.clock.SetTimeOfDay(1000.4);
  Start(kOrdered);
  EXPECT_EQ(bench.Counter("m_lStartTime"), 1000) << "the start is rounded";
  bench.backend.clock.SetTimeOfDay(1119.9);
  bench.GameTick();
  EXPECT_TRUE(bench.top->messages.empty());
  bench.backend.clock.SetTimeOfDay(1120);
  bench.GameTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_lost"});
}

TEST_F(SquareGame, ALimitBelowTwoSecondsLosesASolvedGame) {
  SquareBench quick("1");
  quick.backend.clock.SetTimeOfDay(500);
  quick.TurnOnGame();
  quick.QueueTiles(kOrdered);
  quick.area->Send("startgame");
  quick.GameTick();
  for (auto [x, y] : {std::pair{445, 195}, std::pair{445, 295}}) {
    quick.Click(x, y);
    for (int i = 0; i < 8; ++i) quick.GameTick();
  }
  EXPECT_EQ(quick.Counter("m_bSolved"), 1);
  quick.backend.clock.SetTimeOfDay(501);
  quick.GameTick();
  EXPECT_EQ(quick.top->messages, Lines{"subgame_lost"});
}

TEST_F(SquareGame, AGameAcrossMidnightDoesNotTimeOut) {
  bench.backend.clock.SetTimeOfDay(86390);
  Start(kOrdered);
  bench.backend.clock.SetTimeOfDay(5000);
  Ticks(3);
  EXPECT_TRUE(bench.top->messages.empty());
}

TEST_F(SquareGame, EndGameIsTheWholeTextAndLosesOnce) {
  Start(kOrdered);
  bench.area->Send("xendgame");
  EXPECT_EQ(bench.top->messages, Lines{"xendgame"});
  bench.area->Send("EndGame");
  bench.area->Send("endgame");
  EXPECT_EQ(bench.top->messages, (Lines{"xendgame", "subgame_lost"}));
}

TEST_F(SquareGame, StoppingTakesOneTileAndTurningOffTheOthers) {
  Start(kOrdered);
  (*bench.game->Children().Find("Scoring1"))->SetVisible(true);
  bench.area->Send("stopgame");
  EXPECT_EQ(bench.CellNames().size(), 7u);
  EXPECT_EQ(bench.CellNames().front(), "Square2");
  EXPECT_FALSE(bench.IsShown("Scoring1"));
  bench.game->TurnOff();
  EXPECT_TRUE(bench.CellNames().empty());
}

TEST_F(SquareGame, AStoppedGameCanBeStartedAgain) {
  Start(kOrdered);
  bench.area->Send("stopgame");
  bench.QueueTiles({2, 1, 3, 4, 5, 6, 7, 8});
  bench.area->Send("startgame");
  EXPECT_EQ(bench.Board(), "2 1 3 4 5 6 7 8 0");
  EXPECT_EQ(bench.CellNames().size(), 8u);
}

TEST_F(SquareGame, ARunningGameIsNotStartedAgain) {
  Start(kOrdered);
  ClickPlace(6);
  bench.area->Send("startgame");
  EXPECT_EQ(bench.Board(), "1 2 3 4 5 0 7 8 6");
}

TEST(SquareBoardRules, OnlyThreeTilesPerRowCanBePlayed) {
  for (const char* size : {"1", "2", "4", "0", "-3", "30000"}) {
    SquareBench bench("120", {size, "100", "200", "50"});
    bench.TurnOnGame();
    EXPECT_EQ(FatalOf([&] { bench.area->Send("startgame"); }),
              "info\\board.txt:3: a board of " + std::string(size) +
                  " tiles per row can't be laid out; only 3 per row can");
  }
}

TEST(SquareBoardRules, TooFewStateNamesAreFatalAtTheStart) {
  SquareBench bench;
  bench.files.Put("\\info\\board.txt",
                  Text({"\\info\\tile.txt", "60", "3", "100", "0", "0", "a", "b"}));
  bench.TurnOnGame();
  EXPECT_EQ(FatalOf([&] { bench.area->Send("startgame"); }),
            "info\\board.txt:8: there are 2 state names for 8 tiles");
}

TEST(SquareBoardRules, AGameWithoutDataCanNotBeStarted) {
  SubgameBench bench("playareasquare", "nothing");
  bench.TurnOnGame();
  EXPECT_NE(FatalOf([&] { bench.area->Send("startgame"); }), "no fatal error");
}

TEST(SquareBoardRules, CheckPositionAsksForATileFullyOnTheField) {
  SquareBench bench;
  bench.TurnOnGame();
  bench.area->Send("startgame");
  auto& area = dynamic_cast<PlayAreaObject_Square&>(*bench.area);
  const auto at = [&area](int x, int y) {
    CoordObject coord;
    coord.SetParams(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y));
    return area.CheckPosition(coord);
  };
  EXPECT_TRUE(at(0, 0));
  EXPECT_TRUE(at(709, 509));
  EXPECT_FALSE(at(710, 509));
  EXPECT_FALSE(at(709, 510));
  EXPECT_FALSE(at(-1, 0));
  EXPECT_FALSE(at(0, -1));
}

TEST(SquareTile, ItCanNotBeTurnedOffTakesNoChildrenAndIsReset) {
  SquareBench bench;
  bench.TurnOnGame();
  bench.QueueTiles(kOrdered);
  bench.area->Send("startgame");
  auto& tile = bench.Cell("Square1");
  tile.TurnOff();
  EXPECT_TRUE(tile.ObjectOn());
  tile.AddChildObject(std::make_shared<ForwardingObject>(bench.world));
  EXPECT_TRUE(tile.Children().Empty());
  tile.Send("Reset");
  EXPECT_EQ(tile.CurrentState(), "default");
}

TEST(SquareTile, ItKnowsWhereItStands) {
  SquareBench bench;
  bench.TurnOnGame();
  bench.QueueTiles(kOrdered);
  bench.area->Send("startgame");
  const CoordObject at = bench.CellAs<CellObject_Square>("Square5").GetCurrentPosition();
  EXPECT_EQ(at.X, 300);
  EXPECT_EQ(at.Y, 150);
  EXPECT_EQ(bench.Cell("Square5").xpos(), 0) << "it stands there from the first tick on";
}

TEST(SquareTile, MoreTilesThanTheBoardHoldsAreNoPlace) {
  SquareBench bench;
  Lines lines{"\\info\\tile.txt", "60", "3", "100", "0", "0"};
  for (int tile = 1; tile <= 9; ++tile) lines.push_back("t" + std::to_string(tile));
  bench.files.Put("\\info\\board.txt", Text(lines));
  bench.TurnOnGame();
  bench.area->Send("startgame");
  auto& area = dynamic_cast<PlayAreaObject_Square&>(*bench.area);
  area.SquareClicked(bench.CellAs<CellObject_Square>("Square1"), "t9");
  EXPECT_EQ(bench.Counter("m_bAnimating"), 0);
}

TEST_F(SquareGame, TheStartIsRoundedHalfToEven) {
  for (const auto& [time, start] :
       {std::pair{1000.5, 1000}, std::pair{1001.5, 1002}, std::pair{1000.6, 1001}}) {
    SquareBench fresh;
    fresh.backend.clock.SetTimeOfDay(time);
    fresh.StartGame();
    EXPECT_EQ(fresh.Counter("m_lStartTime"), start) << time;
  }
}

TEST_F(SquareGame, TheTwoSecondsOfTheFlightCountFromTheSolution) {
  bench.backend.clock.SetTimeOfDay(1000);
  Start(kOrdered);
  ClickPlace(6);
  Ticks(8);
  ClickPlace(9);
  bench.backend.clock.SetTimeOfDay(1050.4);
  Ticks(7);
  EXPECT_EQ(bench.Counter("m_bSolved"), 1);
  EXPECT_EQ(bench.Counter("m_lStartTime"), 1050);
  bench.backend.clock.SetTimeOfDay(1051.9);
  bench.GameTick();
  EXPECT_TRUE(bench.top->messages.empty());
  bench.backend.clock.SetTimeOfDay(1052.1);
  bench.GameTick();
  EXPECT_EQ(bench.top->messages, Lines{"subgame_won"});
}

TEST_F(SquareGame, OfTwoTilesWithOneStateTheLastCounts) {
  bench.files.Put("\\info\\board.txt", Text({"\\info\\tile.txt", "120", "3", "100", "200", "50",
                                             "t1", "t2", "t3", "t4", "t5", "t6", "t7", "t1"}));
  Start(kOrdered);
  ClickPlace(1);
  EXPECT_EQ(bench.Board(), "1 2 3 4 5 6 7 0 8") << "tile 8 counts, which is beside the gap";
}

TEST_F(SquareGame, TurningOnTellsTheFrameInThisOrder) {
  bench.LoadGame();
  struct NotedByTheFrame : Tracer {
    void Trace(const TraceEvent& event) override {
      if (event.kind == TraceKind::kMessage && event.to == "game") texts.emplace_back(event.text);
    }
    Lines texts;
  } tracer;
  bench.watch.tracer = &tracer;
  bench.game->TurnOn();
  bench.watch.tracer = nullptr;
  EXPECT_EQ(tracer.texts, (Lines{"hideobj_HOK1", "hideobj_EOK1", "showobj_Play1", "showobj_Help1",
                                 "hideobj_Scoring1"}));
}

TEST_F(SquareGame, StoppingGoesBackToTheFirstStateAndShowsThePlayButton) {
  bench.files.Put("\\Info\\area\\states.txt",
                  Text({"default", "nothing", "nothing", "nothing", "", "",  //
                        "busy", "nothing", "nothing", "nothing", "", ""}));
  Start(kOrdered);
  bench.area->ProcessState("busy");
  (*bench.game->Children().Find("Play1"))->SetVisible(false);
  bench.area->Send("stopgame");
  EXPECT_EQ(bench.area->CurrentState(), "default");
  EXPECT_TRUE(bench.IsShown("Play1"));
}

TEST_F(SquareGame, AGameThatIsStoppedInTheMiddleOfAMoveLeavesTheNextOneNothing) {
  Start(kOrdered);
  ClickPlace(1);
  EXPECT_TRUE(Animating());
  bench.area->Send("stopgame");
  bench.area->Send("startgame");
  EXPECT_FALSE(Animating());
  EXPECT_EQ(bench.Counter("m_nWiggles"), 0);
}

TEST_F(SquareGame, AGameThatIsStoppedWhenSolvedLeavesTheNextOneUnsolved) {
  Start(kOrdered);
  ClickPlace(6);
  Ticks(8);
  ClickPlace(9);
  Ticks(7);
  EXPECT_EQ(bench.Counter("m_bSolved"), 1);
  bench.area->Send("stopgame");
  bench.area->Send("startgame");
  EXPECT_EQ(bench.Counter("m_bSolved"), 0);
}

}  // namespace
}  // namespace quendle
