#include "base/Numbers.h"

#include <cmath>
#include <limits>

#include "base/DecimalNumber.h"
#include "base/Text.h"

namespace quendle {
namespace {

// Reads a number from the front of `text`; gives the count of characters read, 0 without one.
std::size_t ReadFront(std::string_view text, double& value) {
  const std::size_t sign = text.starts_with('+') ? 1 : 0;
  const DecimalNumber number = ReadDecimal(text.substr(sign));
  const std::optional<double> nearest = NearestDouble(number);
  if (number.length == 0 || (sign == 1 && number.negative) || !nearest) return 0;
  value = *nearest;
  return sign + number.length;
}

template <class Int>
Int Narrow(double value, std::string_view what, const FilePlace& place) {
  double rounded = RoundHalfEven(value);
  if (!(rounded >= std::numeric_limits<Int>::min() && rounded <= std::numeric_limits<Int>::max())) {
    throw FatalError(
        std::string(what) + " is out of range for " + std::to_string(8 * sizeof(Int)) + " bits",
        place);
  }
  return static_cast<Int>(rounded);
}

}  // namespace

double RoundHalfEven(double value) {
  double floor = std::floor(value);
  double fraction = value - floor;
  if (fraction < 0.5) return floor;
  if (fraction > 0.5) return floor + 1;
  return std::fmod(floor, 2.0) == 0.0 ? floor : floor + 1;
}

std::optional<double> ParseNumber(std::string_view text) {
  text = TrimBlanks(text);
  double value = 0;
  std::size_t used = ReadFront(text, value);
  if (used == 0 || used != text.size()) return std::nullopt;
  return value;
}

double LeadingNumber(std::string_view text) {
  double value = 0;
  return ReadFront(TrimBlanks(text), value) > 0 ? value : 0;
}

std::int16_t ToInt16(double value, std::string_view what, const FilePlace& place) {
  return Narrow<std::int16_t>(value, what, place);
}

std::int32_t ToInt32(double value, std::string_view what, const FilePlace& place) {
  return Narrow<std::int32_t>(value, what, place);
}

double NumberFromText(std::string_view text, std::string_view what, const FilePlace& place) {
  std::optional<double> value = ParseNumber(text);
  if (!value) {
    throw FatalError("\"" + std::string(text) + "\" is not a number (" + std::string(what) + ")",
                     place);
  }
  return *value;
}

std::int16_t Int16FromText(std::string_view text, std::string_view what, const FilePlace& place) {
  return ToInt16(NumberFromText(text, what, place), what, place);
}

std::int32_t Int32FromText(std::string_view text, std::string_view what, const FilePlace& place) {
  return ToInt32(NumberFromText(text, what, place), what, place);
}

std::int16_t SaturatingIncrement(std::int16_t value) {
  return value == std::numeric_limits<std::int16_t>::max() ? value
                                                           : static_cast<std::int16_t>(value + 1);
}

}  // namespace quendle
