#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/FatalError.h"

namespace quendle {

enum class StatementVerb { kMtp, kChange, kRunSound, kRunState, kOther };

// What the second word of a statement is.
enum class StatementMeaning {
  kMessage,       // sent to the parent
  kState,         // entered for good
  kPassingState,  // entered, and left again by itself
  kSound,         // started
  kNothing        // nobody reads it
};

StatementMeaning MeaningOf(StatementVerb verb);

// The first words that are verbs.
std::vector<std::string> StatementWords();

// One action line, cut into its words once. Any line is a statement; one whose first word is no
// verb does nothing when it is carried out.
class Statement {
 public:
  // NOLINTNEXTLINE(google-explicit-constructor): a line of text is a statement.
  Statement(std::string_view text, FilePlace origin = {});
  Statement(const char* text) : Statement(std::string_view(text)) {}         // NOLINT
  Statement(const std::string& text) : Statement(std::string_view(text)) {}  // NOLINT

  const std::string& Text() const { return text_; }
  const FilePlace& Origin() const { return origin_; }
  StatementVerb Verb() const { return verb_; }
  StatementMeaning Meaning() const { return MeaningOf(verb_); }
  bool HasArgument() const { return has_argument_; }
  // Word 2 as it stands. Fatal when the statement has one word only.
  const std::string& Argument() const;
  // Word 2 may hold a token such as "<currentstate>".
  bool MayHoldToken() const { return may_hold_token_; }

 private:
  StatementVerb verb_ = StatementVerb::kOther;
  bool has_argument_ = false;
  bool may_hold_token_ = false;
  std::string argument_;
  std::string text_;
  FilePlace origin_;
};

}  // namespace quendle
