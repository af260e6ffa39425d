#include "script/Statement.h"

#include <utility>

#include "base/FirstFit.h"

namespace quendle {
namespace {

struct Row {
  FitRow<StatementVerb> test;
  StatementMeaning meaning;
};

constexpr Row kRows[] = {
    {{Fit::kIs, "mtp", StatementVerb::kMtp}, StatementMeaning::kMessage},
    {{Fit::kIs, "change", StatementVerb::kChange}, StatementMeaning::kState},
    {{Fit::kIs, "runsound", StatementVerb::kRunSound}, StatementMeaning::kSound},
    {{Fit::kIs, "runstate", StatementVerb::kRunState}, StatementMeaning::kPassingState},
};

StatementVerb VerbOf(std::string_view word) {
  for (const Row& row : kRows) {
    if (row.test.Takes(word)) return row.test.answer;
  }
  return StatementVerb::kOther;
}

}  // namespace

StatementMeaning MeaningOf(StatementVerb verb) {
  for (const Row& row : kRows) {
    if (row.test.answer == verb) return row.meaning;
  }
  return StatementMeaning::kNothing;
}

std::vector<std::string> StatementWords() {
  std::vector<std::string> words;
  for (const Row& row : kRows) words.emplace_back(row.test.word);
  return words;
}

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
