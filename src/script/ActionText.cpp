#include "script/ActionText.h"

#include <algorithm>
#include <cstring>

#include "base/Text.h"

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

ActionText::ActionText(std::string_view text)
    : text_(text),
      folded_(FoldCase(text)),
      head_(FirstEightBytes(folded_)),
      tail_(LastEightBytes(folded_)) {}

const ActionText& ActionText::Not() const {
  if (!not_) not_ = std::make_unique<ActionText>(text_ + "not");
  return *not_;
}

ActionText ActionText::InRegion(std::string_view region) const {
  return ActionText(std::string(region) + text_);
}

}  // namespace quendle
