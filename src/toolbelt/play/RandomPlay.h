#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "toolbelt/drive/DriveSession.h"

namespace quendle {

// `quendle random`.
struct RandomSettings {
  std::string content;  // native path of the content tree
  long events = 1000;
  std::string from;  // the screen where each game begins; empty: where a player does
  std::string difficulty = "Normal";
  std::string output;    // where the script of a fault is saved; empty: standard output only
  DriveOptions options;  // its seed is also that of the events
};

// Plays wild events: the pointer and its buttons at objects and anywhere, keys, focus, and time. A
// game that ends in order is followed by another. At the first fault it finds a short list of
// events that still shows it, and tells fault and list as a script for `quendle drive`. The same
// settings play the same events. Gives the exit code: 0, or 3 after a fault. Throws
// CommandRefused when there is no such screen, std::runtime_error when the output can't be written.
int PlayRandomly(const RandomSettings& settings, std::ostream& out, std::ostream& errors);

}  // namespace quendle
