// Decimal numbers in a text, exact and the same with every library and locale: not each standard
// library reads real numbers without asking the locale.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quendle {

// A number as it is written: 0.DIGITS times ten to the exponent.
struct DecimalNumber {
  // Without zeros at either end, empty for 0. Of a very long number the first 800, and then a 1
  // that stands for the rest: it only says that something follows.
  std::string digits;
  long exponent = 0;
  bool negative = false;
  std::size_t length = 0;  // characters read, 0 without a number
};

// Reads from the front of a text: an optional minus, digits with an optional point among or around
// them, and an optional exponent. What follows is left alone.
DecimalNumber ReadDecimal(std::string_view text);

// The nearest double, of two equally near the even one. Nothing when that is infinite, or when it
// is 0 and the number isn't.
std::optional<double> NearestDouble(const DecimalNumber& number);

}  // namespace quendle
