#pragma once

#include <iosfwd>
#include <string>

#include "toolbelt/drive/DriveSession.h"

namespace quendle {

// `quendle tree`.
struct TreeSettings {
  std::string content;  // native path of the content tree
  std::string screen;   // a screen of the table; empty: all of them, and the global objects
  bool json = false;
  DriveOptions options;
};

// Prints the objects of a screen as they are when it is entered, each below its parent: type,
// state, position and size. A fault is told on `errors`. Gives the exit code: 0, or 3 when the game
// ended fatally. Throws CommandRefused when there is no such screen.
int PrintTree(const TreeSettings& settings, std::ostream& out, std::ostream& errors);

}  // namespace quendle
