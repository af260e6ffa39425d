#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace quendle {

// Where a verification walk stands. Who starts a walk fills both lists, hands the walk to
// GameLogicLayer, starts a timer for its steps and notes the timer's id here. Positions count
// from 1.
struct ScreenWalk {
  static constexpr int kRounds = 5;  // of all words, on each screen

  std::vector<std::string> screens;
  std::vector<std::string> words;  // root names of tools; the long walk never ends without one
  std::int32_t timer = 0;          // killed at the end of the walk; 0 for none
  std::size_t screen = 1;
  std::size_t word = 1;
  int round = 1;
  bool in_step = false;  // a box that a message shows runs the timers on: steps don't overlap

  bool ScreensLeft() const { return screen <= screens.size(); }
};

}  // namespace quendle
