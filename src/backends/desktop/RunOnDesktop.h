#pragma once

#include <functional>
#include <string>

namespace quendle {

class DesktopBackend;

struct ProgramInfo {
  std::string program;  // "wumbly"
  std::string product;  // "Wumbly": caption of boxes
  std::string build;    // version and build, for --version
};

// The whole of main() but the game: reads the command line, builds the backend, tells the player
// when content or display is missing, then calls `play`, which runs the game to its end and gives
// the exit code. What `play` lets through: a FatalError is shown in a box and gives 1, ProcessEnds
// gives 0.
int RunOnDesktop(const ProgramInfo& info, int argc, const char* const* argv,
                 const std::function<int(DesktopBackend&)>& play);

}  // namespace quendle
