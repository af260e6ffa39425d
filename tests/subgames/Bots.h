// Small players, one for each game: they look at what is on the screen and use the mouse.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <queue>
#include <sstream>
#include <string>
#include <vector>

#include "base/SeededRandom.h"
#include "subgames/CellObject_Shot.h"
#include "subgames/SubgameBench.h"

namespace quendle {

// How well a player plays.
struct Skill {
  int click_pause = 0;  // milliseconds from one click to the next
  int aim_error = 0;    // pixels, on each axis
};

enum class Outcome { kWon, kLost, kNone };

// A game entered from the patient's room and played until its outcome stands there.
template <class Bench>
struct BotGame {
  template <class... Arguments>
  explicit BotGame(Skill player, std::uint64_t seed, Arguments&&... arguments)
      : bench(std::forward<Arguments>(arguments)...), skill(player), hand(seed + 1000) {
    bench.PutButton("Play1", {"toobj_area_startgame", "hideobj_Play1"});
    bench.PutButton("replay", {"toobj_area_restartgame", "hideobj_replay"});
    for (const char* name : {"Help1", "HOK1", "EOK1", "Scoring1"}) bench.PutObject(name, "key");
    bench.template Register<ButtonObject>("key");
    bench.StartClinic(
        "begin\nif action = gamewon\nmtp hideobj_koala\nmtp cs_introscreen\n"
        "elseif action = gamelost\nmtp cs_floor1hall1\nendif\nend\n");
    bench.EnterSubgame();
    (*Frame().Children().Find("replay"))->SetVisible(false);
    Press(5, 5);  // kept from a new screen
    Press(5, 5);  // the play button
  }

  GameObjectInterface& Frame() { return *bench.logic->CurrentScreen(); }
  Outcome GetOutcome() const {
    if (bench.Screen() == "introscreen") return Outcome::kWon;
    if (bench.Screen() == "floor1hall1") return Outcome::kLost;
    return Outcome::kNone;
  }
  bool Plays() const { return GetOutcome() == Outcome::kNone; }

  void Press(double x, double y) {
    bench.logic->MapMouseClick(Pixel(x, 799), Pixel(y, 599));
    last_click = Now();
  }
  void Point(double x, double y) { bench.logic->MapMouseCoords(Pixel(x, 799), Pixel(y, 599)); }
  // Clicks near a point, if the hand is ready.
  bool Click(double x, double y) {
    if (Now() - last_click < skill.click_pause) return false;
    Press(x + Error(), y + Error());
    return true;
  }
  double Error() { return skill.aim_error * (2 * hand.Rnd() - 1); }
  void Wait(int milliseconds) { bench.Tick(milliseconds); }
  long Now() { return static_cast<long>(bench.backend.clock.Monotonic().count()); }
  static std::int16_t Pixel(double value, int last) {
    return static_cast<std::int16_t>(std::clamp<long>(std::lround(value), 0, last));
  }

  Bench bench;
  Skill skill;
  SeededRandom hand;
  long last_click = -100000;
};

// Steps that the tiles of a board are away from their places, at least.
inline int StepsAway(const std::string& board) {
  int steps = 0;
  for (int place = 0; place < 9; ++place) {
    const int tile = board[static_cast<std::size_t>(place)] - '1';
    if (tile < 0) continue;
    steps += std::abs(tile % 3 - place % 3) + std::abs(tile / 3 - place / 3);
  }
  return steps;
}

// A board with the gap at its end can be put in order if an even number of pairs is turned round.
inline bool IsSolvable(const std::string& start) {
  int turned = 0;
  for (std::size_t i = 0; i < 8; ++i) {
    for (std::size_t k = i + 1; k < 8; ++k) turned += start[i] > start[k] ? 1 : 0;
  }
  return turned % 2 == 0;
}

// The places to click, one after the other, of a board that can be put in order.
inline std::vector<int> SolveBoard(const std::string& start) {
  struct Known {
    std::string before;
    int click = 0;
    int moves = 0;
  };
  const std::string goal = "123456780";
  std::map<std::string, Known> known{{start, {}}};
  std::priority_queue<std::pair<int, std::string>> open;  // the most promising first
  open.emplace(0, start);
  while (!open.empty() && !known.contains(goal)) {
    const std::string board = open.top().second;
    open.pop();
    const int gap = static_cast<int>(board.find('0'));
    for (const int step : {-3, 3, -1, 1}) {
      const int tile = gap + step;
      if (tile < 0 || tile > 8 || (std::abs(step) == 1 && tile / 3 != gap / 3)) continue;
      std::string next = board;
      std::swap(next[static_cast<std::size_t>(gap)], next[static_cast<std::size_t>(tile)]);
      const int moves = known[board].moves + 1;
      if (!known.try_emplace(next, Known{board, tile + 1, moves}).second) continue;
      open.emplace(-moves - 2 * StepsAway(next), next);
    }
  }
  std::vector<int> clicks;
  for (std::string board = goal; board != start; board = known[board].before) {
    clicks.insert(clicks.begin(), known[board].click);
  }
  return clicks;
}

inline std::string BoardDigits(const SquareBench& bench) {
  std::string digits = bench.Board();
  std::erase(digits, ' ');
  return digits;
}

// Solves the board by search, click by click; without a solution it waits for the end.
struct SquareBot : BotGame<SquareBench> {
  explicit SquareBot(std::uint64_t seed, Skill player = {})
      : BotGame(player, seed, "120", Lines{"3", "100", "200", "50"}, seed) {}
  bool Solvable() const { return IsSolvable(BoardDigits(bench)); }

  Outcome Play() {
    std::vector<int> clicks;
    if (Solvable()) clicks = SolveBoard(BoardDigits(bench));
    std::size_t next = 0;
    while (Plays()) {
      Wait(20);
      if (!Plays() || next >= clicks.size() || bench.Counter("m_bAnimating") != 0) continue;
      const int place = clicks[next];
      const std::string before = bench.Board();
      Click(200 + (place - 1) % 3 * 100 + 45, 50 + (place - 1) / 3 * 100 + 45);
      if (bench.Board() != before) ++next;
    }
    return GetOutcome();
  }
};

// Aims ahead of the enemies and steps aside from their shots.
struct ShooterBot : BotGame<ShooterBench> {
  explicit ShooterBot(std::uint64_t seed, Skill player = {},
                      const std::string& points = "60 40 240 40 420 40 150 110 330 110 *")
      : BotGame(player, seed, points, seed) {}

  // Where the slide takes an enemy in so many ticks.
  int XAhead(const GameObjectInterface& enemy, int ticks) const {
    long offset = bench.Number(enemy, "side offset");
    const long speed = bench.Number(enemy, "side speed");
    bool right = bench.Number(enemy, "direction flag") != 0;
    for (int i = 0; i < ticks; ++i) {
      offset += right ? speed : -speed;
      if (offset >= 150 || offset < 1) right = !right;
    }
    return static_cast<int>(bench.Number(enemy, "XGoal") + offset);
  }
  GameObjectInterface* Target() const {
    GameObjectInterface* lowest = nullptr;
    for (const auto& entry : bench.area->Children()) {
      GameObjectInterface& cell = *entry.value;
      const bool enemy = cell.ObjectType() == "cell2" && cell.Visible();
      if (enemy && (lowest == nullptr || cell.ypos() > lowest->ypos())) lowest = &cell;
    }
    return lowest;
  }
  // A place near `x` where no shot comes down on the player's 40 pixels.
  double SafeNear(double x) const {
    for (const int step : {0, -50, 50, -100, 100, -150, 150, -200, 200}) {
      const double candidate = x + step;
      if (candidate >= 0 && candidate <= 750 && IsSafe(candidate)) return candidate;
    }
    return x;
  }
  bool IsSafe(double x) const {
    for (int i = 1; i <= 10; ++i) {
      auto& shot = bench.CellAs<CellObject_Shot>("shot" + std::to_string(i));
      if (!shot.Visible() || shot.IsGoodCell() || shot.ypos() < 420) continue;
      if (shot.xpos() > x - 12 && shot.xpos() < x + 48) return false;
    }
    return true;
  }

  Outcome Play() {
    while (Plays()) {
      Wait(60);
      if (!Plays()) break;
      GameObjectInterface* enemy = Target();
      if (enemy == nullptr) continue;
      const int flight = (535 - enemy->ypos() - 15) / 12;
      const double aim = XAhead(*enemy, flight) + 18;
      Click(aim, 300);
      Point(SafeNear(aim), 300);
    }
    return GetOutcome();
  }
  // Stays under the formation and does nothing.
  Outcome StandStill() {
    Point(240, 300);
    while (Plays() && Now() < 3600 * 1000) Wait(60);
    return GetOutcome();
  }
};

// Keeps the paddle under the ball, at a place that always changes: a ball that is level with a
// paddle at rest never leaves it.
struct BlinkerBot : BotGame<BlinkerBench> {
  explicit BlinkerBot(std::uint64_t seed, Skill player = {}) : BotGame(player, seed, seed) {}

  void PressReplay() {
    if ((*Frame().Children().Find("replay"))->Visible()) Press(5, 5);
  }
  Outcome Play() {
    while (Plays() && Now() < 600 * 1000) {
      Wait(50);
      if (!Plays()) break;
      PressReplay();
      auto& ball = bench.Cell("shot1");
      // Near the paddle's left end the ball goes up steeply.
      Point(ball.xpos() + 14 - 54 * hand.Rnd() + Error(), 300);
    }
    return GetOutcome();
  }
  Outcome LookAway() {
    Point(0, 300);
    while (Plays() && Now() < 600 * 1000) {
      Wait(50);
      if (!Plays()) break;
      PressReplay();
      auto& ball = bench.Cell("shot1");
      Point(ball.xpos() < 400 ? 700 : 0, 300);
    }
    return GetOutcome();
  }
};

// Clicks bad cells where no good one is near.
struct BobblerBot : BotGame<BobblerBench> {
  explicit BobblerBot(std::uint64_t seed, Skill player = {}) : BotGame(player, seed, seed) {}

  // The middle of a visible cell of that type, apart from all good cells; nothing without one.
  std::optional<std::pair<int, int>> Target(const std::string& type) const {
    const int apart = 24 + skill.aim_error;
    for (const auto& entry : bench.area->Children()) {
      const GameObjectInterface& cell = *entry.value;
      if (!cell.Visible() || cell.ObjectType() != type) continue;
      const int x = cell.xpos() + 10;
      const int y = cell.ypos() + 10;
      if (x < 1 || y < 1 || x > 798 || y > 598) continue;
      if (type == "good" || !GoodNear(x, y, apart)) return std::pair{x, y};
    }
    return std::nullopt;
  }
  bool GoodNear(int x, int y, int apart) const {
    return std::ranges::any_of(bench.area->Children(), [&](const auto& entry) {
      const GameObjectInterface& cell = *entry.value;
      return cell.Visible() && cell.ObjectType() == "good" &&
             std::abs(cell.xpos() + 10 - x) < apart && std::abs(cell.ypos() + 10 - y) < apart;
    });
  }
  Outcome ClickAll(const std::string& type) {
    while (Plays() && Now() < 600 * 1000) {
      Wait(75);
      if (!Plays()) break;
      if (const auto at = Target(type)) Click(at->first, at->second);
    }
    return GetOutcome();
  }
};

}  // namespace quendle
