#include "base/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "base/Text.h"

namespace quendle {
namespace {

bool BeginsNumber(std::string_view text) {
  if (!text.empty() && text.front() == '-') text.remove_prefix(1);
  return !text.empty() && (text.front() == '.' || (text.front() >= '0' && text.front() <= '9'));
}

// Reads a number from the front of `text`; gives the count of characters read, 0 without one.
std::size_t ReadFront(std::string_view text, double& value) {
  std::size_t sign = text.starts_with('+') ? 1 : 0;
  std::string_view digits = text.substr(sign);
  if (!BeginsNumber(digits) || (sign == 1 && digits.front() == '-')) return 0;
  auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc{}) return 0;
  return static_cast<std::size_t>(end - text.data());
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
  if (used == 0 || used != text.size() || !std::isfinite(value)) return std::nullopt;
  return value;
}

double LeadingNumber(std::string_view text) {
  double value = 0;
  return ReadFront(TrimBlanks(text), value) > 0 && std::isfinite(value) ? value : 0;
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
