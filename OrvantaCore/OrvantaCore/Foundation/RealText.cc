#include "orvanta/Foundation/RealText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

// The C library writes and expects the decimal point of the current locale, which another thread
// may change. So nothing is parsed that has a point, and whatever is in its place is replaced.

namespace orvanta::portable {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

char* append(char* to, std::string_view text) { return std::copy(text.begin(), text.end(), to); }

/// An exponent, with a limit that no number with digits in memory comes back from.
std::int64_t parseExponent(std::string_view text) {
  constexpr std::int64_t kLimit = 1'000'000'000'000'000;
  const bool negative = text.starts_with('-');
  std::int64_t exponent = 0;
  for (const char c : text) {
    if (isDigit(c)) exponent = std::min(exponent * 10 + (c - '0'), kLimit);
  }
  return negative ? -exponent : exponent;
}

/// Parses the digits of a whole number, times a power of ten. `text` has 24 bytes after the digits.
double parseScaled(char* text, char* end, std::int64_t exponent) {
  std::snprintf(end, 24, "e%lld", static_cast<long long>(exponent));
  return std::strtod(text, nullptr);
}

/// Puts a point where the C library wrote that of the locale, which may have several bytes.
void replacePoint(std::string& text) {
  const auto isOther = [](char c) { return !isDigit(c) && c != '-' && c != '+' && c != 'e'; };
  const auto first = std::find_if(text.begin(), text.end(), isOther);
  if (first == text.end()) return;
  *first = '.';
  text.erase(first + 1, std::find_if_not(first + 1, text.end(), isOther));
}

std::string formatted(const char* format, int precision, double number) {
  if (!std::isfinite(number)) {
    return std::string(std::signbit(number) ? "-" : "") + (std::isnan(number) ? "nan" : "inf");
  }
  char text[400];  // the largest double has 309 digits before the point
  const int size = std::snprintf(text, sizeof text, format, precision, number);
  std::string result(text, static_cast<std::size_t>(size));
  replacePoint(result);
  return result;
}

constexpr int kMaxDigits = std::numeric_limits<double>::max_digits10;

/// Decimal digits: the first one before the point.
struct Decimal {
  char digits[kMaxDigits + 24];
  int count;
  int exponent;

  Decimal(double number, int digitCount) : count(digitCount) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*e", count - 1, number);
    const char* const mark = std::strchr(text, 'e');
    std::copy_if(static_cast<const char*>(text), mark, digits, isDigit);
    exponent = static_cast<int>(parseExponent(mark + 1));
  }

  double value() { return parseScaled(digits, digits + count, exponent - (count - 1)); }

  /// Adds one to the last digit. Returns false if all digits are nines.
  bool increment() {
    int last = count - 1;
    for (; last >= 0 && digits[last] == '9'; --last) digits[last] = '0';
    if (last < 0) return false;
    ++digits[last];
    return true;
  }
};

/// The shortest digits of a positive number that are parsed as the same number.
Decimal shortest(double number) {
  // Every number with at most 15 digits keeps them in a double. That does not hold for subnormals.
  const bool isSubnormal = number < std::numeric_limits<double>::min();
  for (int count = isSubnormal ? 1 : std::numeric_limits<double>::digits10;; ++count) {
    Decimal decimal(number, count);
    // The numbers above a power of two are twice as far apart as those below: the nearest decimal
    // may be below and too far, and the one above, which is less near, not.
    if (count == kMaxDigits || decimal.value() == number ||
        (decimal.increment() && decimal.value() == number)) {
      while (decimal.count > 1 && decimal.digits[decimal.count - 1] == '0') --decimal.count;
      return decimal;
    }
  }
}

}  // namespace

bool parseReal(std::string_view text, double& value) noexcept {
  const std::size_t mark = std::min(text.find_first_of("eE"), text.size());
  const std::string_view mantissa = text.substr(0, mark);
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  std::int64_t exponent = mark < text.size() ? parseExponent(text.substr(mark + 1)) : 0;
  if (point < mantissa.size()) exponent -= static_cast<std::int64_t>(mantissa.size() - point - 1);

  char near[64];
  std::string far;
  char* whole = near;
  if (mantissa.size() + 24 > sizeof near) {
    far.resize(mantissa.size() + 24);
    whole = far.data();
  }
  char* const end = std::remove(whole, append(whole, mantissa), '.');
  const double number = parseScaled(whole, end, exponent);
  if (std::isinf(number)) return false;
  if (number == 0.0 && mantissa.find_first_of("123456789") != std::string_view::npos) return false;
  value = number;
  return true;
}

char* printReal(double number, char* to) noexcept {
  if (std::signbit(number)) *to++ = '-';
  if (number == 0.0) return append(to, "0");
  number = std::abs(number);
  const Decimal decimal = shortest(number);
  const std::string_view digits(decimal.digits, static_cast<std::size_t>(decimal.count));
  const int count = decimal.count;
  const int exponent = decimal.exponent;

  const int scientific = count + (count > 1 ? 1 : 0) + (std::abs(exponent) < 100 ? 4 : 5);
  const int fixed = exponent >= count - 1 ? exponent + 1
                    : exponent >= 0       ? count + 1
                                          : count + 1 - exponent;
  if (fixed > scientific) {
    *to++ = digits.front();
    if (count > 1) to = append(append(to, "."), digits.substr(1));
    return to + std::snprintf(to, 6, "e%+03d", exponent);
  }
  // A whole number has all its digits, not only those that tell it from its neighbors.
  if (exponent >= count - 1) return to + std::snprintf(to, kMaxRealText - 1, "%.0f", number);
  if (exponent >= 0) {
    const std::size_t whole = static_cast<std::size_t>(exponent) + 1;
    return append(append(append(to, digits.substr(0, whole)), "."), digits.substr(whole));
  }
  return append(std::fill_n(append(to, "0."), -exponent - 1, '0'), digits);
}

std::string realWithDigits(double number, int digits) { return formatted("%.*g", digits, number); }

std::string realWithDecimals(double number, int decimals) {
  return formatted("%.*f", decimals, number);
}

}  // namespace orvanta::portable
