#include "base/DecimalNumber.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <vector>

namespace quendle {
namespace {

constexpr std::size_t kMostDigits = 800;  // 767 digits and what follows decide between two doubles
constexpr long kFarExponent = 100'000'000;
constexpr int kMantissaBits = 52;
constexpr int kLeastExponent = -1074;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Takes characters from the front of a text.
class Front {
 public:
  explicit Front(std::string_view text) : text_(text) {}

  std::size_t Taken() const { return taken_; }
  bool Take(char wanted) {
    if (Next() != wanted) return false;
    ++taken_;
    return true;
  }
  std::string_view TakeDigits() {
    const std::size_t first = taken_;
    while (IsDigit(Next())) ++taken_;
    return text_.substr(first, taken_ - first);
  }
  void Return(std::size_t taken) { taken_ = taken; }

 private:
  char Next() const { return taken_ < text_.size() ? text_[taken_] : '\0'; }

  std::string_view text_;
  std::size_t taken_ = 0;
};

// The exponent after the digits; what begins like one and isn't is left where it stands.
long TakeExponent(Front& front) {
  const std::size_t before = front.Taken();
  if (!front.Take('e') && !front.Take('E')) return 0;
  const bool negative = front.Take('-');
  if (!negative) front.Take('+');
  const std::string_view digits = front.TakeDigits();
  if (digits.empty()) front.Return(before);
  long exponent = 0;
  for (char digit : digits) exponent = std::min(exponent * 10 + (digit - '0'), kFarExponent);
  return negative ? -exponent : exponent;
}

// Takes zeros from both ends, and stands for a long rest by a single digit.
void Shorten(DecimalNumber& number) {
  std::string& digits = number.digits;
  const std::size_t zeros = std::min(digits.find_first_not_of('0'), digits.size());
  digits.erase(0, zeros);
  number.exponent -= static_cast<long>(zeros);
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.size() > kMostDigits) digits.replace(kMostDigits, std::string::npos, "1");
}

// A natural number of any size.
class BigNatural {
 public:
  explicit BigNatural(std::uint64_t value)
      : words_{static_cast<std::uint32_t>(value), static_cast<std::uint32_t>(value >> 32)} {}

  void MultiplyAdd(std::uint32_t factor, std::uint32_t summand) {
    std::uint64_t carry = summand;
    for (std::uint32_t& word : words_) {
      carry += static_cast<std::uint64_t>(word) * factor;
      word = static_cast<std::uint32_t>(carry);
      carry >>= 32;
    }
    if (carry != 0) words_.push_back(static_cast<std::uint32_t>(carry));
  }
  void MultiplyByPowerOfTen(long power) {
    for (; power > 0; --power) MultiplyAdd(10, 0);
  }
  void Double(long times) {
    for (; times >= 31; times -= 31) MultiplyAdd(std::uint32_t{1} << 31, 0);
    MultiplyAdd(std::uint32_t{1} << times, 0);
  }
  BigNatural Times(std::uint64_t factor) const {
    BigNatural low = *this;
    BigNatural high = *this;
    low.MultiplyAdd(static_cast<std::uint32_t>(factor), 0);
    high.MultiplyAdd(static_cast<std::uint32_t>(factor >> 32), 0);
    high.words_.insert(high.words_.begin(), 0);
    low.Add(high);
    return low;
  }
  // Below 0, 0 or above 0 as this is less than, equal to or greater than the other.
  int Compare(const BigNatural& other) const {
    for (std::size_t i = std::max(words_.size(), other.words_.size()); i-- > 0;) {
      if (Word(i) != other.Word(i)) return Word(i) < other.Word(i) ? -1 : 1;
    }
    return 0;
  }

 private:
  std::uint32_t Word(std::size_t i) const { return i < words_.size() ? words_[i] : 0; }
  void Add(const BigNatural& other) {
    std::uint64_t carry = 0;
    words_.resize(std::max(words_.size(), other.words_.size()) + 1);
    for (std::size_t i = 0; i < words_.size(); ++i) {
      carry += static_cast<std::uint64_t>(words_[i]) + other.Word(i);
      words_[i] = static_cast<std::uint32_t>(carry);
      carry >>= 32;
    }
  }

  std::vector<std::uint32_t> words_;  // the lowest first
};

// The doubles from 0 on, counted: the bits of each, read as a number.
constexpr std::uint64_t kInfinity = std::uint64_t{0x7FF} << kMantissaBits;

struct Binary {
  std::uint64_t mantissa;
  long exponent;
};

Binary BinaryOf(std::uint64_t count) {
  const auto exponent = static_cast<long>(count >> kMantissaBits);
  const std::uint64_t fraction = count & ((std::uint64_t{1} << kMantissaBits) - 1);
  if (exponent == 0) return {fraction, kLeastExponent};
  return {fraction | std::uint64_t{1} << kMantissaBits, kLeastExponent + exponent - 1};
}

// A number as a fraction of two naturals, held against doubles.
class ExactFraction {
 public:
  explicit ExactFraction(const DecimalNumber& number) : over_(0), under_(1) {
    for (char digit : number.digits) over_.MultiplyAdd(10, static_cast<std::uint32_t>(digit - '0'));
    const long power = number.exponent - static_cast<long>(number.digits.size());
    over_.MultiplyByPowerOfTen(power);
    under_.MultiplyByPowerOfTen(-power);
  }

  int Compare(const Binary& binary) const {
    BigNatural left = over_;
    BigNatural right = under_.Times(binary.mantissa);
    left.Double(std::max(-binary.exponent, 0L));
    right.Double(std::max(binary.exponent, 0L));
    return left.Compare(right);
  }

 private:
  BigNatural over_;
  BigNatural under_;
};

// The count of the nearest double, by halving.
std::uint64_t NearestCount(const ExactFraction& fraction) {
  std::uint64_t below = 0;
  std::uint64_t above = kInfinity;
  while (above - below > 1) {
    const std::uint64_t middle = (below + above) / 2;
    (fraction.Compare(BinaryOf(middle)) >= 0 ? below : above) = middle;
  }
  const Binary lower = BinaryOf(below);
  const int side = fraction.Compare({2 * lower.mantissa + 1, lower.exponent - 1});
  return side > 0 || (side == 0 && below % 2 == 1) ? above : below;
}

// Few digits and a small power of ten are both exact as doubles, so one operation rounds once.
std::optional<double> QuickDouble(const DecimalNumber& number) {
  constexpr double kPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  const long power = number.exponent - static_cast<long>(number.digits.size());
  if (number.digits.size() > 15 || std::abs(power) >= std::ssize(kPowers)) return std::nullopt;
  double value = 0;
  for (char digit : number.digits) value = value * 10 + (digit - '0');
  return power < 0 ? value / kPowers[-power] : value * kPowers[power];
}

std::optional<double> ExactDouble(const DecimalNumber& number) {
  if (number.exponent < -400 || number.exponent > 400) return std::nullopt;
  const std::uint64_t count = NearestCount(ExactFraction(number));
  if (count == 0 || count == kInfinity) return std::nullopt;
  const Binary binary = BinaryOf(count);
  return std::ldexp(static_cast<double>(binary.mantissa), static_cast<int>(binary.exponent));
}

}  // namespace

DecimalNumber ReadDecimal(std::string_view text) {
  DecimalNumber number;
  Front front(text);
  number.negative = front.Take('-');
  number.digits = front.TakeDigits();
  number.exponent = static_cast<long>(number.digits.size());
  if (front.Take('.')) number.digits += front.TakeDigits();
  if (number.digits.empty()) return {};
  number.exponent += TakeExponent(front);
  number.length = front.Taken();
  Shorten(number);
  return number;
}

std::optional<double> NearestDouble(const DecimalNumber& number) {
  std::optional<double> value = number.digits.empty() ? 0 : QuickDouble(number);
  if (!value) value = ExactDouble(number);
  return value && number.negative ? -*value : value;
}

}  // namespace quendle
