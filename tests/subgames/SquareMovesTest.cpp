// How tiles move, to the pixel, and which boards count as ordered.
#include <gtest/gtest.h>

#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

struct SquareMoves : testing::Test {
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
  // The tile made for a place.
  GameObjectInterface& Tile(int place) { return bench.Cell("Square" + std::to_string(place)); }
  std::string Goal(int place) {
    return std::to_string(bench.Number(Tile(place), "goal x")) + "," +
           std::to_string(bench.Number(Tile(place), "goal y"));
  }

  SquareBench bench;
};

TEST_F(SquareMoves, AWiggleDrawsTwoGoalsAndGoesHome) {
  Start({1, 2, 3, 4, 5, 6, 7, 8});
  bench.Queue({0.2, 0.7, 0.1, 0.9});
  ClickPlace(2);
  EXPECT_EQ(Goal(2), "285,60");
  Ticks(3);
  EXPECT_EQ(Goal(2), "280,70");
  EXPECT_EQ(bench.Number(Tile(2), "steps"), 3);
  Ticks(3);
  EXPECT_EQ(Goal(2), "300,50");
  EXPECT_EQ(bench.Number(Tile(2), "steps"), 3);
}

TEST_F(SquareMoves, AGoalBetweenTwoPixelsIsTheEvenOne) {
  Start({1, 2, 3, 4, 5, 6, 7, 8});
  // 191.5, 42.5, then 192.5, 41.5.
  bench.Queue({0.33, 0.35, 0.35, 0.33});
  ClickPlace(1);
  EXPECT_EQ(Goal(1), "192,42");
  Ticks(3);
  EXPECT_EQ(Goal(1), "192,42");
}

TEST_F(SquareMoves, ASlideIsRoundedToTheNearestPixelToEitherSide) {
  Start({1, 2, 3, 4, 5, 6, 7, 8});
  ClickPlace(8);  // to the right, from 300
  std::string way;
  for (int i = 0; i < 8; ++i) {
    bench.GameTick();
    way += std::to_string(Tile(8).xpos()) + " ";
  }
  EXPECT_EQ(way, "300 314 329 343 357 371 386 400 ");
  ClickPlace(9);  // and back
  way.clear();
  for (int i = 0; i < 8; ++i) {
    bench.GameTick();
    way += std::to_string(Tile(8).xpos()) + " ";
  }
  EXPECT_EQ(way, "400 386 371 357 343 329 314 300 ");
}

TEST_F(SquareMoves, AStepBetweenTwoPixelsEndsOnTheEvenOne) {
  Start({1, 2, 3, 4, 5, 6, 7, 8});
  ClickPlace(6);
  Ticks(8);
  ClickPlace(9);
  // All fly out to the left: the first two by 25 and 23.
  bench.Queue({0, 0.25, 0.5, 0, 0.23, 0.5});
  Ticks(7);
  ASSERT_EQ(Goal(1), "-25,300");
  ASSERT_EQ(Goal(2), "-23,300");
  Ticks(6);
  EXPECT_EQ(Tile(1).xpos(), 88) << "half of 200 and -25 is 87.5";
  EXPECT_EQ(Tile(2).xpos(), 138) << "half of 300 and -23 is 138.5";
}

TEST_F(SquareMoves, ABoardIsNotOrderedWithoutItsFirstTile) {
  Start({2, 3, 6, 4, 5, 1, 7, 8});
  for (int place : {6, 3, 2, 1}) {
    ClickPlace(place);
    Ticks(8);
  }
  ASSERT_EQ(bench.Board(), "0 2 3 4 5 6 7 8 1");
  EXPECT_EQ(bench.Counter("m_bSolved"), 0);
}

}  // namespace
}  // namespace quendle
