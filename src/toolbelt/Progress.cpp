#include "toolbelt/Progress.h"

#include <unistd.h>

namespace quendle {
namespace {

constexpr std::chrono::milliseconds kShortestPause{100};

}  // namespace

Progress::~Progress() { Clear(); }

bool Progress::ErrorIsTerminal() { return isatty(STDERR_FILENO) == 1; }

void Progress::Step(const std::string& what, std::size_t done, std::size_t all) {
  if (!on_terminal_) return;
  const auto now = std::chrono::steady_clock::now();
  if (width_ > 0 && now - written_ < kShortestPause) return;
  std::string line = what + " " + std::to_string(done);
  if (all > 0) line += " of " + std::to_string(all);
  const std::size_t length = line.size();
  if (length < width_) line.append(width_ - length, ' ');
  out_ << '\r' << line << std::flush;
  width_ = length;
  written_ = now;
}

void Progress::Clear() {
  if (width_ == 0) return;
  out_ << '\r' << std::string(width_, ' ') << '\r' << std::flush;
  width_ = 0;
}

}  // namespace quendle
