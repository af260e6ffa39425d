#include "base/DecimalNumber.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <string>

#include "base/SeededRandom.h"

namespace quendle {
namespace {

// What the standard library of the tests reads, as a line: the characters, and the bits of the
// value.
std::string ReadByLibrary(const std::string& text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::invalid_argument) return "none";
  const std::string length = std::to_string(end - text.data());
  if (error != std::errc{}) return length + " beyond range";
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return length + ' ' + std::to_string(bits);
}

std::string ReadByUs(const std::string& text) {
  const DecimalNumber number = ReadDecimal(text);
  if (number.length == 0) return "none";
  const std::optional<double> value = NearestDouble(number);
  if (!value) return std::to_string(number.length) + " beyond range";
  std::uint64_t bits = 0;
  std::memcpy(&bits, &*value, sizeof bits);
  return std::to_string(number.length) + ' ' + std::to_string(bits);
}

class Chance {
 public:
  int Below(int limit) { return static_cast<int>(random_.Rnd() * limit); }
  std::string Digits(int count) {
    std::string digits;
    for (; count > 0; --count) digits += static_cast<char>('0' + Below(10));
    return digits;
  }
  // Any double above 0: its bits are equally likely, so small and large ones are.
  double Positive() {
    double value = 0;
    while (!(value > 0 && std::isfinite(value))) {
      const std::uint64_t bits = static_cast<std::uint64_t>(Below(1 << 30)) << 34 ^
                                 static_cast<std::uint64_t>(Below(1 << 30)) << 17 ^
                                 static_cast<std::uint64_t>(Below(1 << 30));
      std::memcpy(&value, &bits, sizeof value);
    }
    return value;
  }

 private:
  SeededRandom random_{1};
};

std::string Printed(double value, int digits) {
  char text[100];
  return {text, static_cast<std::size_t>(std::snprintf(text, sizeof text, "%.*g", digits, value))};
}

TEST(DecimalNumber, IsWhatThePlainLibraryReads) {
  for (const char* text : {"0",
                           "-0",
                           "1",
                           "-12.75",
                           "1.",
                           "1.e5",
                           ".5",
                           "-.5e1x",
                           "007",
                           "1e",
                           "1e+",
                           "1.e",
                           "1e5.5",
                           "0x10",
                           "1E5",
                           "1e-3",
                           "1e+3",
                           "1e--3",
                           "1 2",
                           "1,5",
                           "--1",
                           "+1",
                           "",
                           "-",
                           ".",
                           "-.",
                           "e5",
                           ".e5",
                           "inf",
                           "nan",
                           "0.1",
                           "0.30000000000000004",
                           "123456789012345678",
                           "1e22",
                           "1e23",
                           "9007199254740993",
                           "9007199254740992.5",
                           "9007199254740993.0000000000000000000001"}) {
    EXPECT_EQ(ReadByUs(text), ReadByLibrary(text)) << text;
  }
  for (const char* word : {"inf", "-infinity", "nan"}) EXPECT_EQ(ReadByUs(word), "none") << word;
}

TEST(DecimalNumber, EndsWhereDoublesEnd) {
  for (const char* text :
       {"1e-400", "5e-324", "4e-324", "3e-324", "2e-324", "2.4703282292062327e-324",
        "2.4703282292062328e-324", "2.2250738585072011e-308", "2.2250738585072014e-308", "1e400",
        "1.7976931348623157e308", "1.7976931348623158e308", "1.7976931348623159e308",
        "0e999999999999999999999", "1e99999999999999999999", "1e-99999999999999999999"}) {
    EXPECT_EQ(ReadByUs(text), ReadByLibrary(text)) << text;
  }
  EXPECT_EQ(ReadByUs("1e400"), "5 beyond range");
  EXPECT_EQ(ReadByUs("1e-400"), "6 beyond range");
}

TEST(DecimalNumber, AnyDigitsAreReadToTheNearestDouble) {
  Chance chance;
  for (int i = 0; i < 20'000; ++i) {
    std::string text = chance.Below(4) == 0 ? "-" : "";
    text += chance.Digits(chance.Below(25));
    if (chance.Below(3) > 0) text += '.' + chance.Digits(chance.Below(25));
    if (chance.Below(2) == 0) text += 'e' + std::to_string(chance.Below(700) - 350);
    ASSERT_EQ(ReadByUs(text), ReadByLibrary(text)) << text;
  }
}

TEST(DecimalNumber, APrintedDoubleIsReadBack) {
  Chance chance;
  for (int i = 0; i < 5'000; ++i) {
    const double value = chance.Positive();
    for (int digits : {15, 16, 17, 40}) {
      const std::string text = Printed(value, digits);
      ASSERT_EQ(ReadByUs(text), ReadByLibrary(text)) << text;
    }
    ASSERT_EQ(NearestDouble(ReadDecimal(Printed(value, 17))), value);
  }
}

// The middle of two doubles, with all its digits: below 1 these are hundreds.
std::string MiddleAfter(double value) {
  char text[2500];
  const double next = std::nextafter(value, std::numeric_limits<double>::infinity());
  const long double middle = (static_cast<long double>(value) + next) / 2;
  return {text, static_cast<std::size_t>(std::snprintf(text, sizeof text, "%.1100Lf", middle))};
}

TEST(DecimalNumber, TheMiddleOfTwoDoublesGoesToTheEvenOneAndADigitDecides) {
  Chance chance;
  for (int i = 0; i < 300; ++i) {
    const double value = i == 0 ? 0 : chance.Positive();
    if (value > 1e300) continue;  // the next one is finite
    const std::string middle = MiddleAfter(value);
    for (const std::string& text : {middle, middle + "1", middle + std::string(400, '0') + "1"}) {
      ASSERT_EQ(ReadByUs(text), ReadByLibrary(text)) << text;
    }
  }
}

TEST(DecimalNumber, AVeryLongNumberIsReadInOneGo) {
  const std::string zeros(300'000, '0');
  EXPECT_EQ(NearestDouble(ReadDecimal("1." + zeros + "1")), 1);
  EXPECT_EQ(NearestDouble(ReadDecimal("0." + zeros + "1e300001")), 1);
  EXPECT_EQ(NearestDouble(ReadDecimal("1" + zeros + "e-300000")), 1);
  EXPECT_EQ(NearestDouble(ReadDecimal(std::string(300'000, '9') + "e-300000")), 1);
}

}  // namespace
}  // namespace quendle
