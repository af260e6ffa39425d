#include "script/Statement.h"

#include <utility>
#include <vector>

#include "base/Text.h"

namespace quendle {
namespace {

StatementVerb VerbOf(std::string_view word) {
  if (EqualsNoCase(word, "mtp")) return StatementVerb::kMtp;
  if (EqualsNoCase(word, "change")) return StatementVerb::kChange;
  if (EqualsNoCase(word, "runsound")) return StatementVerb::kRunSound;
  if (EqualsNoCase(word, "runstate")) return StatementVerb::kRunState;
  return StatementVerb::kOther;
}

}  // namespace

Statement::Statement(std::string_view text, FilePlace origin)
    : text_(text), origin_(std::move(origin)) {
  std::vector<std::string> words = SplitTokens(text_, ' ');
  if (!words.empty()) verb_ = VerbOf(words[0]);
  if (words.size() < 2) return;
  argument_ = std::move(words[1]);
  has_argument_ = true;
  may_hold_token_ = argument_.find('<') != std::string::npos;
}

const std::string& Statement::Argument() const {
  if (!has_argument_) {
    throw FatalError("the statement \"" + text_ + "\" needs a second word", origin_);
  }
  return argument_;
}

}  // namespace quendle
