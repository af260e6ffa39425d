#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "backends/desktop/DesktopWindow.h"

namespace quendle {

// What the command line of the game says.
struct GameOptions {
  WindowOptions window;
  std::string content;  // folder of the content; empty: where content is looked for
  std::string user;     // folder that takes what the game writes; empty: the content, if it can
  std::optional<bool> captions;  // show captions in this run; nothing: as last chosen in the game
  bool debug = false;            // the event log in a window of its own, and F12 for authors
  bool version = false;
  std::optional<std::int16_t> tester;  // interval of the recorder in milliseconds; none: it is off

  // Reads the command line of `program`. Where that ends the program (help, a usage error) the
  // text was printed and `exit_code` is set: 0, or 2 for an error.
  static GameOptions Parse(const std::string& program, int argc, const char* const* argv,
                           std::optional<int>& exit_code);
};

}  // namespace quendle
