#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "toolbelt/drive/DriveSession.h"

namespace quendle {

// `quendle walk`.
struct WalkSettings {
  std::string content;             // native path of the content tree
  bool brief = false;              // only visits the screens
  std::vector<std::string> words;  // action words of the long walk; empty: KnownActionWords
  long interval = 50;              // milliseconds of virtual time from step to step
  std::string difficulty = "Normal";
  DriveOptions options;
};

// Runs a verification walk and tells on `out`, screen by screen, what happened; a fault is told on
// `errors`. Gives the exit code: 0, 1 when the log warned of something, 3 when the game ended
// fatally.
int RunWalk(const WalkSettings& settings, std::ostream& out, std::ostream& errors);

// The words of an option: a file with one word a line (empty lines and # comments don't count), or
// words parted by commas. Throws std::runtime_error when there is none.
std::vector<std::string> ReadActionWords(const std::string& text);

}  // namespace quendle
