#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quendle {

class ActionText;

// Eight bytes at the front or at the back of a text as one word; missing bytes are 0.
std::uint64_t FirstEightBytes(std::string_view text);
std::uint64_t LastEightBytes(std::string_view text);

// The pattern of a condition, compiled once when the script is parsed.
//
// Without "*" the whole text must be equal. With "*" at the front, what remains of the pattern must
// stand at the end of the text; with "*" anywhere else, at its beginning. Only the first
// occurrence in the text counts, and only the first "*" is special: "*x" fails on "xx", "a*b" is
// the prefix "ab", "*" alone matches anything. Case is ignored.
class Pattern {
 public:
  explicit Pattern(std::string_view text);
  bool Matches(const ActionText& action) const;

 private:
  enum class Kind { kEqual, kAtEnd, kAtFront };
  bool MatchesSlowly(const ActionText& action) const;

  Kind kind_ = Kind::kEqual;
  std::string needle_;      // folded
  std::uint64_t word_ = 0;  // its first or last eight bytes: one compare rejects nearly always
  std::uint64_t mask_ = 0;
};

}  // namespace quendle
