#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>

namespace quendle {
namespace {

template <class Work>
std::string FaultOf(Work work) {
  try {
    work();
  } catch (const FatalError& error) {
    return error.what();
  }
  return "no fault";
}

TEST(RoundHalfEven, TiesGoToTheEvenNumber) {
  EXPECT_EQ(RoundHalfEven(0.5), 0);
  EXPECT_EQ(RoundHalfEven(1.5), 2);
  EXPECT_EQ(RoundHalfEven(2.5), 2);
  EXPECT_EQ(RoundHalfEven(3.5), 4);
  EXPECT_EQ(RoundHalfEven(-0.5), 0);
  EXPECT_EQ(RoundHalfEven(-1.5), -2);
  EXPECT_EQ(RoundHalfEven(-2.5), -2);
}

TEST(RoundHalfEven, OtherNumbersGoToTheNearest) {
  EXPECT_EQ(RoundHalfEven(2.4999), 2);
  EXPECT_EQ(RoundHalfEven(2.5001), 3);
  EXPECT_EQ(RoundHalfEven(-2.5001), -3);
  EXPECT_EQ(RoundHalfEven(0.49999999999999994), 0);
  EXPECT_EQ(RoundHalfEven(7), 7);
  EXPECT_EQ(RoundHalfEven(1e15 + 1), 1e15 + 1);
}

TEST(ParseNumber, TakesWholeAndRealNumbers) {
  EXPECT_EQ(ParseNumber("0"), 0);
  EXPECT_EQ(ParseNumber("640"), 640);
  EXPECT_EQ(ParseNumber("-12"), -12);
  EXPECT_EQ(ParseNumber("+12"), 12);
  EXPECT_EQ(ParseNumber("2.5"), 2.5);
  EXPECT_EQ(ParseNumber(".5"), 0.5);
  EXPECT_EQ(ParseNumber("-.5"), -0.5);
  EXPECT_EQ(ParseNumber("5."), 5);
  EXPECT_EQ(ParseNumber("1e3"), 1000);
  EXPECT_EQ(ParseNumber("007"), 7);
  EXPECT_EQ(ParseNumber("  8  "), 8);
}

TEST(ParseNumber, RefusesEveryOtherText) {
  for (const char* text :
       {"",      " ",      "abc",   "forty", "nothing", "12a", "a12",  "1 2",      "1,5",
        "1.2.3", "--5",    "+-5",   "-+5",   "++5",     "- 5", ".",    "-",        "+",
        "-.",    "e5",     "1e",    "0x10",  "&H10",    "inf", "-inf", "infinity", "nan",
        "NaN",   "nan(1)", "1e999", "5\t",   "5\r",     "5;"}) {
    EXPECT_EQ(ParseNumber(text), std::nullopt) << '"' << text << '"';
  }
  EXPECT_EQ(ParseNumber(std::string_view("5\0", 2)), std::nullopt);
}

TEST(LeadingNumber, IsTheNumberInFrontOrZero) {
  EXPECT_EQ(LeadingNumber("2-highlight"), 2);
  EXPECT_EQ(LeadingNumber(" 2.5x"), 2.5);
  EXPECT_EQ(LeadingNumber("-3px"), -3);
  EXPECT_EQ(LeadingNumber("+3"), 3);
  EXPECT_EQ(LeadingNumber("highlight2"), 0);
  EXPECT_EQ(LeadingNumber(""), 0);
  EXPECT_EQ(LeadingNumber("inf"), 0);
  EXPECT_EQ(LeadingNumber("nan"), 0);
  EXPECT_EQ(LeadingNumber("1e999"), 0);
}

TEST(ToInt16, RoundsAndNarrows) {
  EXPECT_EQ(ToInt16(2.5, "x"), 2);
  EXPECT_EQ(ToInt16(-3.5, "x"), -4);
  EXPECT_EQ(ToInt16(32767.49, "x"), 32767);
  EXPECT_EQ(ToInt16(-32768.5, "x"), -32768);
}

TEST(ToInt16, OverflowIsFatalAndNamesTheValueAndThePlace) {
  EXPECT_EQ(FaultOf([] { ToInt16(32767.5, "the width"); }),
            "the width is out of range for 16 bits");
  EXPECT_EQ(FaultOf([] {
              ToInt16(-32769, "the width", {"Info\\x.txt", 7});
            }),
            "Info\\x.txt:7: the width is out of range for 16 bits");
  EXPECT_NE(FaultOf([] { ToInt16(std::nan(""), "x"); }), "no fault");
  EXPECT_NE(FaultOf([] { ToInt16(HUGE_VAL, "x"); }), "no fault");
  EXPECT_NE(FaultOf([] { ToInt16(-HUGE_VAL, "x"); }), "no fault");
}

TEST(ToInt32, RoundsAndNarrowsToItsOwnRange) {
  EXPECT_EQ(ToInt32(40000.5, "x"), 40000);
  EXPECT_EQ(ToInt32(2147483647.0, "x"), 2147483647);
  EXPECT_EQ(ToInt32(-2147483648.0, "x"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(FaultOf([] { ToInt32(2147483648.0, "the colour"); }),
            "the colour is out of range for 32 bits");
}

TEST(IntFromText, RoundsHalfToEven) {
  EXPECT_EQ(Int16FromText("2.5", "x"), 2);
  EXPECT_EQ(Int16FromText("3.5", "x"), 4);
  EXPECT_EQ(Int32FromText("-0.5", "x"), 0);
  EXPECT_EQ(Int32FromText("70000", "x"), 70000);
}

TEST(IntFromText, ATextThatIsNoNumberIsFatalAndTold) {
  EXPECT_EQ(FaultOf([] {
              Int16FromText("forty", "source width", {"Info\\hall\\frames.txt", 7});
            }),
            "Info\\hall\\frames.txt:7: \"forty\" is not a number (source width)");
  EXPECT_EQ(FaultOf([] { Int32FromText("", "colour"); }), "\"\" is not a number (colour)");
  EXPECT_EQ(FaultOf([] {
              Int16FromText("40000", "x", {"a.txt", 2});
            }),
            "a.txt:2: x is out of range for 16 bits");
}

TEST(SaturatingIncrement, StopsAtTheLargestValue) {
  EXPECT_EQ(SaturatingIncrement(0), 1);
  EXPECT_EQ(SaturatingIncrement(-1), 0);
  EXPECT_EQ(SaturatingIncrement(32766), 32767);
  EXPECT_EQ(SaturatingIncrement(32767), 32767);
}

class CommaForPoint : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

// A locale in which "1,5" is one and a half, for the C library (where installed) and for C++.
class CommaLocale {
 public:
  CommaLocale() {
    before_c_ = std::setlocale(LC_ALL, nullptr);
    before_ = std::locale::global(std::locale(std::locale::classic(), new CommaForPoint));
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8"}) {
      if (std::setlocale(LC_ALL, name) != nullptr) break;
    }
  }
  ~CommaLocale() {
    std::locale::global(before_);
    std::setlocale(LC_ALL, before_c_.c_str());
  }

 private:
  std::string before_c_;
  std::locale before_;
};

TEST(Numbers, AreReadAndToldTheSameInALocaleWithADecimalComma) {
  CommaLocale comma;
  EXPECT_EQ(ParseNumber("2.5"), 2.5);
  EXPECT_EQ(ParseNumber("2,5"), std::nullopt);
  EXPECT_EQ(ParseNumber("1.000"), 1);
  EXPECT_EQ(LeadingNumber("2.5x"), 2.5);
  EXPECT_EQ(Int32FromText("12345.5", "x"), 12346);
  EXPECT_EQ(FaultOf([] {
              ToInt16(1e6, "x", {"a.txt", 12345});
            }),
            "a.txt:12345: x is out of range for 16 bits");
}

}  // namespace
}  // namespace quendle
