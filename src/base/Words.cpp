#include "base/Words.h"

#include "base/FatalError.h"
#include "base/Text.h"

namespace quendle {

Words::Words(std::string_view text, char delimiter)
    : text_(text), delimiter_(delimiter), words_(SplitTokens(text, delimiter)) {}

const std::string& Words::operator[](std::size_t number) const {
  if (number < 1 || number > words_.size()) {
    throw FatalError("\"" + text_ + "\" needs word " + std::to_string(number) + " and has " +
                     std::to_string(words_.size()));
  }
  return words_[number - 1];
}

std::string Words::Tail(std::size_t number) const {
  (*this)[number];
  return JoinTokens(words_, number - 1, delimiter_);
}

}  // namespace quendle
