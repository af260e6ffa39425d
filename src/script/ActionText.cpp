#include "script/ActionText.h"

#include <algorithm>
#include <cstring>

#include "base/Text.h"
#include "script/ActionTable.h"

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

ActionText::ActionText(std::string_view text, ActionTable* table)
    : table_(table), text_(text), folded_(FoldCase(text)) {
  edges_ = {FirstEightBytes(folded_), LastEightBytes(folded_)};
}

const ActionText& ActionText::MakeNot() const {
  if (table_ != nullptr) {
    not_ = &table_->Get(text_ + "not");
  } else {
    own_not_ = std::make_unique<ActionText>(text_ + "not");
    not_ = own_not_.get();
  }
  return *not_;
}

const ActionText& ActionText::InRegion(std::string_view region) const {
  std::string text(region);
  text += text_;
  if (table_ != nullptr) return table_->Get(text);
  own_region_ = std::make_unique<ActionText>(text);
  return *own_region_;
}

}  // namespace quendle
