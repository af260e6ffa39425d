#pragma once

#include <iosfwd>
#include <string>

namespace quendle {

// `quendle replay`.
struct ReplaySettings {
  std::string content;  // native path of the content tree
  std::string session;  // native path of the session file; its sidecar stands beside it
  bool update = false;  // the sidecar is written anew instead of compared
};

// Plays a recorded session anew in virtual time, under the conditions of its sidecar, and compares
// the state once a second. Tells on `out` the first difference, or that there is none. Gives the
// exit code: 0 the same, 1 different, 3 when the game ended fatally. Throws FatalError or
// std::runtime_error for files that can't be read.
int RunReplay(const ReplaySettings& settings, std::ostream& out);

}  // namespace quendle
