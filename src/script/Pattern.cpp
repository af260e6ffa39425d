#include "script/Pattern.h"

#include "base/Text.h"

namespace quendle {

Pattern::Pattern(std::string_view text) : needle_(FoldCase(text)) {
  if (std::size_t star = needle_.find('*'); star != std::string::npos) {
    kind_ = star == 0 ? Kind::kAtEnd : Kind::kAtFront;
    needle_.erase(star, 1);
  }
  const std::string ones(needle_.size(), '\xFF');
  const bool from_end = kind_ == Kind::kAtEnd;
  edge_.end = from_end ? 1 : 0;
  edge_.word = from_end ? LastEightBytes(needle_) : FirstEightBytes(needle_);
  edge_.mask = from_end ? LastEightBytes(ones) : FirstEightBytes(ones);
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
