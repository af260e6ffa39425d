#include "script/ActionText.h"

#include "base/Text.h"
#include "script/Pattern.h"

namespace quendle {

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
