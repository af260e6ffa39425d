// Reading and narrowing of numbers, independent of the locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/FatalError.h"

namespace quendle {

// To the nearest integer, ties to the even one.
double RoundHalfEven(double value);

// The number that the whole text is, blanks around it allowed; nothing for any other text.
std::optional<double> ParseNumber(std::string_view text);

// The number that the text begins with, 0 without one: "2-highlight" is 2.
double LeadingNumber(std::string_view text);

// Rounds half to even and narrows. A value out of range is fatal; `what` names it in the message.
std::int16_t ToInt16(double value, std::string_view what, const FilePlace& place = {});
std::int32_t ToInt32(double value, std::string_view what, const FilePlace& place = {});

// A text that must be a number, as it stands and rounded to 16 or 32 bits. Any other text is fatal.
double NumberFromText(std::string_view text, std::string_view what, const FilePlace& place = {});
std::int16_t Int16FromText(std::string_view text, std::string_view what,
                           const FilePlace& place = {});
std::int32_t Int32FromText(std::string_view text, std::string_view what,
                           const FilePlace& place = {});

// Adds to a counter that only grows in lawful play: stops at the largest value.
std::int16_t SaturatingIncrement(std::int16_t value);

}  // namespace quendle
