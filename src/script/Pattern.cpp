#include "script/Pattern.h"

#include <algorithm>
#include <cstring>

#include "base/Text.h"
#include "script/ActionText.h"

namespace quendle {

std::uint64_t FirstEightBytes(std::string_view text) {
  std::uint64_t word = 0;
  std::memcpy(&word, text.data(), std::min<std::size_t>(text.size(), 8));
  return word;
}

std::uint64_t LastEightBytes(std::string_view text) {
  unsigned char bytes[8] = {};
  std::size_t count = std::min<std::size_t>(text.size(), 8);
  std::memcpy(bytes + 8 - count, text.data() + text.size() - count, count);
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, 8);
  return word;
}

Pattern::Pattern(std::string_view text) : needle_(FoldCase(text)) {
  if (std::size_t star = needle_.find('*'); star != std::string::npos) {
    kind_ = star == 0 ? Kind::kAtEnd : Kind::kAtFront;
    needle_.erase(star, 1);
  }
  const std::string ones(needle_.size(), '\xFF');
  const bool from_end = kind_ == Kind::kAtEnd;
  word_ = from_end ? LastEightBytes(needle_) : FirstEightBytes(needle_);
  mask_ = from_end ? LastEightBytes(ones) : FirstEightBytes(ones);
}

bool Pattern::Matches(const ActionText& action) const {
  const std::uint64_t edge = kind_ == Kind::kAtEnd ? action.Tail() : action.Head();
  return (edge & mask_) == word_ && MatchesSlowly(action);
}

bool Pattern::MatchesSlowly(const ActionText& action) const {
  const std::string& text = action.Folded();
  switch (kind_) {
    case Kind::kEqual:
      return text == needle_;
    case Kind::kAtFront:
      return text.starts_with(needle_);
    case Kind::kAtEnd:
      return needle_.empty() ||
             (text.ends_with(needle_) && text.find(needle_) == text.size() - needle_.size());
  }
  return false;
}

}  // namespace quendle
