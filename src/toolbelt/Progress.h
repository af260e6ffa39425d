#pragma once

#include <chrono>
#include <cstddef>
#include <ostream>
#include <string>

namespace quendle {

// One line that tells how far long work has come: rewritten in place on a terminal, nothing at all
// in a pipe or a file.
class Progress {
 public:
  // `out` must outlive the progress.
  Progress(std::ostream& out, bool on_terminal) : out_(out), on_terminal_(on_terminal) {}
  // Takes the line away.
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // Standard error is a terminal.
  static bool ErrorIsTerminal();

  // "WHAT DONE", or "WHAT DONE of ALL" when `all` isn't 0. Written at most ten times a second.
  void Step(const std::string& what, std::size_t done, std::size_t all = 0);
  // Takes the line away, before something else is printed.
  void Clear();

 private:
  std::ostream& out_;
  bool on_terminal_;
  std::size_t width_ = 0;  // of the line that stands
  std::chrono::steady_clock::time_point written_{};
};

}  // namespace quendle
