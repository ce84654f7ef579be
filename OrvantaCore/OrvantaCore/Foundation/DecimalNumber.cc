#include "orvanta/Foundation/DecimalNumber.h"

#include <algorithm>
#include <limits>

namespace orvanta {

namespace {

constexpr int kMinExponent = -128;
constexpr int kMaxExponent = 127;
constexpr std::uint64_t kHalfLimit = 10'000'000'000'000'000'000U;  // 10^19

bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }
bool isSpace(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// Removes a sign from the start of a string; returns true for a minus.
bool takeSign(std::string_view& text) noexcept {
  if (text.empty() || (text.front() != '-' && text.front() != '+')) return false;
  const bool negative = text.front() == '-';
  text.remove_prefix(1);
  return negative;
}

/// Reads "e", an optional sign and digits; 0 for anything else. Clamped, so that it cannot
/// overflow.
std::int64_t exponentReading(std::string_view text) noexcept {
  if (text.empty() || (text.front() != 'e' && text.front() != 'E')) return 0;
  text.remove_prefix(1);
  const bool negative = takeSign(text);
  std::int64_t exponent = 0;
  for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1)) {
    if (exponent < std::numeric_limits<std::int32_t>::max()) {
      exponent = exponent * 10 + (text.front() - '0');
    }
  }
  return negative ? -exponent : exponent;
}

}  // namespace

constexpr DecimalNumber::Mantissa DecimalNumber::kLimit = Mantissa{kHalfLimit} * kHalfLimit;

DecimalNumber DecimalNumber::notANumber() noexcept {
  DecimalNumber number;
  number.nan_ = true;
  return number;
}

DecimalNumber DecimalNumber::make(bool negative, Mantissa mantissa,
                                  std::int64_t exponent) noexcept {
  for (; mantissa >= kLimit || (mantissa != 0 && exponent < kMinExponent); ++exponent) {
    mantissa /= 10;
  }
  for (; mantissa != 0 && mantissa % 10 == 0; ++exponent) mantissa /= 10;
  for (; mantissa != 0 && exponent > kMaxExponent; --exponent) {
    if (mantissa >= kLimit / 10) return notANumber();
    mantissa *= 10;
  }
  DecimalNumber number;
  if (mantissa == 0) return number;
  number.mantissa_ = mantissa;
  number.exponent_ = static_cast<int>(exponent);
  number.negative_ = negative;
  return number;
}

DecimalNumber::DecimalNumber(std::int64_t number) noexcept {
  const auto bits = static_cast<std::uint64_t>(number);
  *this = make(number < 0, number < 0 ? 0 - bits : bits, 0);
}

DecimalNumber DecimalNumber::decimalNumberWithString(std::string_view string) noexcept {
  while (!string.empty() && isSpace(string.front())) string.remove_prefix(1);
  const bool negative = takeSign(string);
  Mantissa mantissa = 0;
  std::int64_t exponent = 0;
  bool fraction = false;
  bool digits = false;
  for (; !string.empty(); string.remove_prefix(1)) {
    const char c = string.front();
    if (c == '.' && !fraction) {
      fraction = true;
      continue;
    }
    if (!isDigit(c)) break;
    digits = true;
    const bool fits = mantissa < kLimit / 10;
    if (fits) mantissa = mantissa * 10 + static_cast<unsigned>(c - '0');
    exponent += (fits ? 0 : 1) - (fraction ? 1 : 0);
  }
  if (!digits) return notANumber();
  return make(negative, mantissa, exponent + exponentReading(string));
}

DecimalNumber DecimalNumber::subtracting(const DecimalNumber& other) const noexcept {
  if (nan_ || other.nan_) return notANumber();
  if (other.mantissa_ == 0) return *this;
  DecimalNumber a = *this;
  DecimalNumber b = other;
  b.negative_ = !b.negative_;
  if (a.mantissa_ == 0) return b;
  // Give both the same exponent: lower the larger one as far as 38 digits allow, then raise the
  // smaller one, which truncates.
  DecimalNumber& high = a.exponent_ > b.exponent_ ? a : b;
  DecimalNumber& low = a.exponent_ > b.exponent_ ? b : a;
  for (; high.exponent_ > low.exponent_ && high.mantissa_ < kLimit / 10; --high.exponent_) {
    high.mantissa_ *= 10;
  }
  for (; high.exponent_ > low.exponent_; ++low.exponent_) low.mantissa_ /= 10;
  if (a.negative_ == b.negative_) return make(a.negative_, a.mantissa_ + b.mantissa_, a.exponent_);
  if (a.mantissa_ < b.mantissa_) std::swap(a, b);
  return make(a.negative_, a.mantissa_ - b.mantissa_, a.exponent_);
}

DecimalNumber DecimalNumber::multiplyingBy(const DecimalNumber& other) const noexcept {
  if (nan_ || other.nan_) return notANumber();
  // Multiply limbs of 19 digits, the lowest first: the product has up to 76 digits, and the partial
  // products fit in 128 bits.
  const Mantissa a[] = {mantissa_ % kHalfLimit, mantissa_ / kHalfLimit};
  const Mantissa b[] = {other.mantissa_ % kHalfLimit, other.mantissa_ / kHalfLimit};
  Mantissa product[4] = {};
  for (int i = 0; i < 2; ++i) {
    Mantissa carry = 0;
    for (int j = 0; j < 2; ++j) {
      const Mantissa sum = a[i] * b[j] + product[i + j] + carry;
      product[i + j] = sum % kHalfLimit;
      carry = sum / kHalfLimit;
    }
    product[i + 2] = carry;
  }
  std::int64_t exponent = std::int64_t{exponent_} + other.exponent_;
  for (; product[3] != 0 || product[2] != 0; ++exponent) {
    Mantissa rest = 0;
    for (int i = 3; i >= 0; --i) {
      const Mantissa part = rest * kHalfLimit + product[i];
      product[i] = part / 10;
      rest = part % 10;
    }
  }
  return make(negative_ != other.negative_, product[1] * kHalfLimit + product[0], exponent);
}

DecimalNumber DecimalNumber::multiplyingByPowerOf10(int power) const noexcept {
  if (nan_) return *this;
  return make(negative_, mantissa_, std::int64_t{exponent_} + power);
}

DecimalNumber DecimalNumber::dividingByRoundingDown(const DecimalNumber& divisor) const noexcept {
  if (nan_ || divisor.nan_ || divisor.mantissa_ == 0) return notANumber();
  int exponent = exponent_ - divisor.exponent_;
  Mantissa quotient = mantissa_ / divisor.mantissa_;
  Mantissa rest = mantissa_ % divisor.mantissa_;
  bool exact = true;
  for (; exponent > 0 && rest != 0 && quotient < kLimit / 10; --exponent) {
    // The next digit of ten times the rest, by addition because the product may not fit.
    Mantissa sum = 0;
    unsigned digit = 0;
    for (int i = 0; i < 10; ++i) {
      sum += rest;
      if (sum >= divisor.mantissa_) sum -= divisor.mantissa_, ++digit;
    }
    quotient = quotient * 10 + digit;
    rest = sum;
  }
  for (; exponent < 0 && quotient != 0; ++exponent, quotient /= 10) exact &= quotient % 10 == 0;
  const bool negative = negative_ != divisor.negative_;
  if (negative && (!exact || rest != 0)) ++quotient;
  return make(negative, quotient, std::max(exponent, 0));
}

std::int64_t DecimalNumber::longLongValue() const noexcept {
  const std::uint64_t limit = std::numeric_limits<std::int64_t>::max() + std::uint64_t{negative_};
  Mantissa magnitude = mantissa_;
  for (int i = exponent_; i < 0 && magnitude != 0; ++i) magnitude /= 10;
  for (int i = exponent_; i > 0 && magnitude <= limit; --i) magnitude *= 10;
  const auto bits = static_cast<std::uint64_t>(std::min<Mantissa>(magnitude, limit));
  return static_cast<std::int64_t>(negative_ ? 0 - bits : bits);
}

std::string DecimalNumber::stringValue() const {
  if (nan_) return "NaN";
  std::string digits(static_cast<std::size_t>(std::max(exponent_, 0)), '0');  // in reverse
  Mantissa left = mantissa_;
  for (int place = std::min(exponent_, 0); left != 0 || place <= 0; ++place) {
    if (place == 0 && exponent_ < 0) digits += '.';
    digits += static_cast<char>('0' + static_cast<int>(left % 10));
    left /= 10;
  }
  if (negative_) digits += '-';
  std::reverse(digits.begin(), digits.end());
  return digits;
}

std::strong_ordering operator<=>(const DecimalNumber& a, const DecimalNumber& b) noexcept {
  if (a.nan_ || b.nan_) return b.nan_ <=> a.nan_;
  const auto sign = [](const DecimalNumber& x) {
    return x.mantissa_ == 0 ? 0 : x.negative_ ? -1 : 1;
  };
  if (sign(a) != sign(b) || sign(a) == 0) return sign(a) <=> sign(b);
  // With all mantissas at 38 digits, exponents compare first and mantissas second.
  const auto full = [](DecimalNumber x) {
    for (; x.mantissa_ < DecimalNumber::kLimit / 10; --x.exponent_) x.mantissa_ *= 10;
    return x;
  };
  const DecimalNumber x = full(a.negative_ ? b : a);
  const DecimalNumber y = full(a.negative_ ? a : b);
  if (x.exponent_ != y.exponent_) return x.exponent_ <=> y.exponent_;
  return x.mantissa_ == y.mantissa_  ? std::strong_ordering::equal
         : x.mantissa_ < y.mantissa_ ? std::strong_ordering::less
                                     : std::strong_ordering::greater;
}

}  // namespace orvanta
