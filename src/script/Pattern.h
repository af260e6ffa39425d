#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "script/ActionText.h"

namespace quendle {

// The pattern of a condition, compiled once when the script is parsed.
//
// Without "*" the whole text must be equal. With "*" at the front, what remains of the pattern must
// stand at the end of the text; with "*" anywhere else, at its beginning. Only the first
// occurrence in the text counts, and only the first "*" is special: "*x" fails on "xx", "a*b" is
// the prefix "ab", "*" alone matches anything. Case is ignored.
class Pattern {
 public:
  explicit Pattern(std::string_view text);
  bool Matches(const ActionText& action) const {
    return edge_.MayMatch(action) && MatchesSlowly(action);
  }

 private:
  enum class Kind { kEqual, kAtEnd, kAtFront };
  // The eight bytes at the edge that decides: one compare rejects nearly always.
  struct Edge {
    std::uint64_t word = 0;
    std::uint64_t mask = 0;
    std::size_t end = 0;  // 1 for the back of the text
    bool MayMatch(const ActionText& action) const { return (action.Edge(end) & mask) == word; }
  };
  bool MatchesSlowly(const ActionText& action) const;

  Kind kind_ = Kind::kEqual;
  std::string needle_;  // folded
  Edge edge_;
};

}  // namespace quendle
