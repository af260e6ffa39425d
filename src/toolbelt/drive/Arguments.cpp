#include "toolbelt/drive/Arguments.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/Numbers.h"
#include "base/Text.h"

namespace quendle {

bool Arguments::Empty() const { return TrimBlanks(rest_).empty(); }

std::string Arguments::Word() {
  const std::string_view text = TrimBlanks(rest_);
  if (text.empty()) Refuse("a word is missing");
  const std::size_t end = std::min(text.find(' '), text.size());
  rest_ = text.substr(end);
  return std::string(text.substr(0, end));
}

double Arguments::Number() {
  const std::string word = Word();
  const std::optional<double> number = ParseNumber(word);
  if (!number) Refuse("\"" + word + "\" is not a number");
  return *number;
}

long Arguments::Whole(long lowest, long highest) {
  const double number = Number();
  const bool whole = number == std::floor(number);
  if (!whole || number < static_cast<double>(lowest) || number > static_cast<double>(highest)) {
    Refuse("a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest) +
           " is expected");
  }
  return static_cast<long>(number);
}

std::int16_t Arguments::Coordinate() {
  return static_cast<std::int16_t>(Whole(INT16_MIN, INT16_MAX));
}

std::string Arguments::Rest() {
  const std::string_view text = TrimBlanks(rest_);
  if (text.empty()) Refuse("a text is missing");
  rest_ = {};
  return std::string(text);
}

void Arguments::End() const {
  if (!Empty()) Refuse("\"" + std::string(TrimBlanks(rest_)) + "\" is too much");
}

void Arguments::Refuse(const std::string& reason) const {
  throw CommandRefused(reason + "; usage: " + std::string(usage_));
}

}  // namespace quendle
