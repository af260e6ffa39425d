// Each game is won and lost by a small player with the mouse alone, and the outcome is back at the
// patient.
#include "subgames/Bots.h"

#include <gtest/gtest.h>

#include <iostream>

namespace quendle {
namespace {

// How often a player of a child's speed and aim wins, over so many seeds.
constexpr Skill kChild{400, 20};
constexpr std::uint64_t kSolvableSeed = 5;

TEST(Bots, ASolvableBoardIsWon) {
  SquareBot bot(kSolvableSeed);
  ASSERT_TRUE(bot.Solvable());
  EXPECT_EQ(bot.Play(), Outcome::kWon);
}

TEST(Bots, ABoardLeftAloneIsLost) {
  SquareBot bot(kSolvableSeed);
  bot.Wait(125 * 1000);
  EXPECT_EQ(bot.GetOutcome(), Outcome::kLost);
}

TEST(Bots, HalfOfTheBoardsCanNotBeSolved) {
  int solvable = 0;
  for (std::uint64_t seed = 1; seed <= 20; ++seed) solvable += SquareBot(seed).Solvable() ? 1 : 0;
  EXPECT_GT(solvable, 4);
  EXPECT_LT(solvable, 16);
}

TEST(Bots, TheShooterIsWonByAimingAhead) { EXPECT_EQ(ShooterBot(3).Play(), Outcome::kWon); }

TEST(Bots, TheShooterIsLostByStandingStill) {
  EXPECT_EQ(ShooterBot(3).StandStill(), Outcome::kLost);
}

TEST(Bots, TheBlinkerIsWonByFollowingTheBall) {
  BlinkerBot bot(3);
  EXPECT_EQ(bot.Play(), Outcome::kWon);
}

TEST(Bots, TheBlinkerIsLostByLookingAway) { EXPECT_EQ(BlinkerBot(3).LookAway(), Outcome::kLost); }

TEST(Bots, TheBobblerIsWonByClickingBadCells) {
  EXPECT_EQ(BobblerBot(3).ClickAll("bad"), Outcome::kWon);
}

TEST(Bots, TheBobblerIsLostByClickingGoodCells) {
  EXPECT_EQ(BobblerBot(3).ClickAll("good"), Outcome::kLost);
}

TEST(Bots, OneSeedGivesOneGame) {
  BobblerBot first(3);
  BobblerBot second(3);
  first.ClickAll("bad");
  second.ClickAll("bad");
  EXPECT_EQ(first.Now(), second.Now());
}

// Not a test of a rule: prints how fair the games are to a child. Run it by name.
TEST(Bots, DISABLED_FairnessToAChild) {
  const int games = 100;
  int square = 0, shooter = 0, blinker = 0, bobbler = 0, hard = 0;
  for (std::uint64_t seed = 1; seed <= games; ++seed) {
    square += SquareBot(seed, kChild).Play() == Outcome::kWon ? 1 : 0;
    shooter += ShooterBot(seed, kChild).Play() == Outcome::kWon ? 1 : 0;
    ShooterBot fast(seed, kChild);
    fast.bench.settings.DifficultyLevel = "Hard";
    fast.bench.area->TurnOn();
    fast.bench.area->Send("startgame");
    hard += fast.Play() == Outcome::kWon ? 1 : 0;
    blinker += BlinkerBot(seed, kChild).Play() == Outcome::kWon ? 1 : 0;
    bobbler += BobblerBot(seed, kChild).ClickAll("bad") == Outcome::kWon ? 1 : 0;
  }
  std::cout << "won of " << games << ": square " << square << ", shooter " << shooter
            << " (Hard: " << hard << "), blinker " << blinker << ", bobbler " << bobbler << "\n";
}

}  // namespace
}  // namespace quendle
