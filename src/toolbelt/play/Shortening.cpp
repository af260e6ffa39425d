#include "toolbelt/play/Shortening.h"

#include <algorithm>
#include <utility>

namespace quendle {
namespace {

std::vector<std::string> Without(const std::vector<std::string>& lines, std::size_t from,
                                 std::size_t count) {
  std::vector<std::string> rest(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(from));
  const std::size_t next = std::min(from + count, lines.size());
  rest.insert(rest.end(), lines.begin() + static_cast<std::ptrdiff_t>(next), lines.end());
  return rest;
}

}  // namespace

std::vector<std::string> ShortenLines(
    std::vector<std::string> lines,
    const std::function<bool(const std::vector<std::string>&)>& fails, std::size_t most_runs) {
  std::size_t runs = 0;
  std::size_t piece = (lines.size() + 1) / 2;
  while (piece > 0 && !lines.empty()) {
    bool shorter = false;
    // From the back: the last events are those that matter, and what stands before them goes in
    // whole pieces.
    for (std::size_t end = lines.size(); end > 0 && runs < most_runs;) {
      const std::size_t from = end > piece ? end - piece : 0;
      std::vector<std::string> rest = Without(lines, from, end - from);
      ++runs;
      if (fails(rest)) {
        lines = std::move(rest);
        shorter = true;
      }
      end = from;
    }
    if (runs >= most_runs) break;
    // Once more with single lines as long as that helps: one may have needed another.
    if (piece == 1 && !shorter) break;
    piece = piece == 1 ? 1 : (piece + 1) / 2;
  }
  return lines;
}

}  // namespace quendle
