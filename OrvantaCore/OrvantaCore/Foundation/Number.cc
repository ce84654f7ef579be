#include "orvanta/Foundation/Number.h"

#include <cmath>
#include <functional>
#include <limits>

#include "orvanta/Foundation/Exception.h"
#include "orvanta/Foundation/RealText.h"
#include "orvanta/Foundation/internal/BitCast.h"

namespace orvanta {

namespace {

constexpr double kTwo63 = 9223372036854775808.0;
constexpr double kTwo64 = 18446744073709551616.0;

std::int64_t clampedToSigned(double value) noexcept {
  if (std::isnan(value)) return 0;
  if (value >= kTwo63) return std::numeric_limits<std::int64_t>::max();
  if (value < -kTwo63) return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(value);
}

std::uint64_t clampedToUnsigned(double value) noexcept {
  if (value >= kTwo64) return std::numeric_limits<std::uint64_t>::max();
  if (value >= kTwo63) return static_cast<std::uint64_t>(value);
  return static_cast<std::uint64_t>(clampedToSigned(value));
}

bool isSpace(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }

std::string_view withoutLeadingSpace(std::string_view text) noexcept {
  while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
  return text;
}

/// Removes a sign from the start of a string; returns true for a minus.
bool takeSign(std::string_view& text) noexcept {
  if (text.empty() || (text.front() != '-' && text.front() != '+')) return false;
  const bool negative = text.front() == '-';
  text.remove_prefix(1);
  return negative;
}

/// Reads decimal digits after white space and a sign, clamped to a magnitude for each sign. Returns
/// the bits in two's complement.
std::uint64_t integerReading(std::string_view text, std::uint64_t lowest,
                             std::uint64_t highest) noexcept {
  text = withoutLeadingSpace(text);
  const bool negative = takeSign(text);
  const std::uint64_t limit = negative ? lowest : highest;
  std::uint64_t magnitude = 0;
  for (const char c : text) {
    if (!isDigit(c)) break;
    const auto digit = static_cast<std::uint64_t>(c - '0');
    if (magnitude > (limit - digit) / 10) {
      magnitude = limit;
      break;
    }
    magnitude = magnitude * 10 + digit;
  }
  return negative ? 0 - magnitude : magnitude;
}

/// The longest prefix that is a decimal number with an optional exponent. Only this is passed to
/// the standard library, which would also accept "inf", "nan" and hexadecimal numbers.
struct DecimalPrefix {
  std::string_view text;       // empty if there is no digit
  std::int64_t magnitude = 0;  // of the first digit that is not 0, as a power of ten, about
};

DecimalPrefix decimalPrefix(std::string_view text) noexcept {
  DecimalPrefix prefix;
  std::size_t end = 0;
  std::int64_t digits = 0;
  std::int64_t beforeDot = 0;
  std::int64_t leadingZeros = 0;
  const auto takeDigits = [&] {
    for (; end < text.size() && isDigit(text[end]); ++end, ++digits) {
      if (leadingZeros == digits && text[end] == '0') ++leadingZeros;
    }
  };
  takeDigits();
  beforeDot = digits;
  if (end < text.size() && text[end] == '.') {
    ++end;
    takeDigits();
  }
  if (digits == 0) return prefix;
  prefix.magnitude = beforeDot - leadingZeros;
  if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
    std::string_view exponent = text.substr(end + 1);
    const bool negative = takeSign(exponent);
    if (!exponent.empty() && isDigit(exponent.front())) {
      std::int64_t value = 0;
      while (!exponent.empty() && isDigit(exponent.front())) {
        if (value < std::numeric_limits<std::int32_t>::max())
          value = value * 10 + (exponent.front() - '0');
        exponent.remove_prefix(1);
      }
      prefix.magnitude += negative ? -value : value;
      end = text.size() - exponent.size();
    }
  }
  prefix.text = text.substr(0, end);
  return prefix;
}

}  // namespace

double realReading(std::string_view string) noexcept {
  string = withoutLeadingSpace(string);
  const bool negative = takeSign(string);
  const DecimalPrefix prefix = decimalPrefix(string);
  if (prefix.text.empty()) return 0.0;
  double value = 0.0;
  if (!parseReal(prefix.text, value)) {
    value = prefix.magnitude > 0 ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return negative ? -value : value;
}

namespace {

[[noreturn]] void throwUnrecognized(const Value& value, std::string_view selector) {
  if (value.isNil()) {
    throw Exception(Exception::kInvalidArgument,
                    "setNilValueForKey: could not set nil as the value of a scalar");
  }
  throw Exception::unrecognizedSelector(value.className(), selector);
}

constexpr auto kInt64Lowest = std::uint64_t{1} << 63U;

}  // namespace

bool Number::boolValue() const noexcept { return isReal() ? doubleValue() != 0.0 : bits_ != 0; }

std::int64_t Number::longLongValue() const noexcept {
  return isReal() ? clampedToSigned(doubleValue()) : static_cast<std::int64_t>(bits_);
}

std::uint64_t Number::unsignedLongLongValue() const noexcept {
  return isReal() ? clampedToUnsigned(doubleValue()) : bits_;
}

double Number::doubleValue() const noexcept {
  switch (kind_) {
    case Kind::real:
      return bitCast<double>(bits_);
    case Kind::real32:
      return static_cast<double>(bitCast<float>(static_cast<std::uint32_t>(bits_)));
    case Kind::integer:
      return static_cast<double>(static_cast<std::int64_t>(bits_));
    default:
      return static_cast<double>(bits_);
  }
}

float Number::floatValue() const noexcept {
  if (kind_ == Kind::integer) return static_cast<float>(static_cast<std::int64_t>(bits_));
  if (!isReal()) return static_cast<float>(bits_);
  const double value = doubleValue();
  // A double beyond the largest float is an infinity; the conversion itself would be undefined.
  constexpr double kLimit = 0x1.ffffffp+127;  // halfway between that float and the next power
  if (value >= kLimit) return std::numeric_limits<float>::infinity();
  if (value <= -kLimit) return -std::numeric_limits<float>::infinity();
  return static_cast<float>(value);
}

std::string Number::description() const {
  const auto significant = [&](int digits) -> std::string {
    return std::isnan(doubleValue()) ? "nan" : realWithDigits(doubleValue(), digits);  // no "-nan"
  };
  switch (kind_) {
    case Kind::real:
      return significant(16);
    case Kind::real32:
      return significant(7);
    case Kind::integer:
      return std::to_string(static_cast<std::int64_t>(bits_));
    default:
      return std::to_string(bits_);
  }
}

namespace {
/// An integer from -2^63 to 2^64-1: 64 bits in two's complement and the sign.
struct ExactInteger {
  bool negative;
  std::uint64_t bits;
  friend bool operator==(const ExactInteger&, const ExactInteger&) = default;
};
}  // namespace

static std::optional<ExactInteger> exactInteger(const Number& number) noexcept {
  if (!number.isReal()) {
    const std::uint64_t bits = number.unsignedLongLongValue();
    return ExactInteger{number.kind() == Kind::integer && number.longLongValue() < 0, bits};
  }
  const double value = number.doubleValue();
  if (!(value >= -kTwo63 && value < kTwo64) || value != std::trunc(value)) return std::nullopt;
  if (value == 0.0 && std::signbit(value)) return std::nullopt;  // -0.0 does not equal 0
  return ExactInteger{value < 0, clampedToUnsigned(value)};
}

bool operator==(const Number& a, const Number& b) noexcept {
  const auto left = exactInteger(a);
  const auto right = exactInteger(b);
  if (left || right) return left == right;
  const double x = a.doubleValue();
  const double y = b.doubleValue();
  return x == y || (std::isnan(x) && std::isnan(y));
}

std::size_t Number::hash() const noexcept {
  if (const auto integer = exactInteger(*this)) return std::hash<std::uint64_t>{}(integer->bits);
  const double value = doubleValue();
  return std::isnan(value) ? 0 : std::hash<double>{}(value);
}

bool booleanReading(std::string_view string) noexcept {
  string = withoutLeadingSpace(string);
  takeSign(string);
  while (!string.empty() && string.front() == '0') string.remove_prefix(1);
  return !string.empty() &&
         std::string_view("YyTt123456789").find(string.front()) != std::string_view::npos;
}

template <>
bool scalarReading<bool>(const Value& value) {
  if (const auto number = value.number()) return number->boolValue();
  if (const auto text = value.string()) return booleanReading(*text);
  throwUnrecognized(value, "boolValue");
}

template <>
std::int32_t scalarReading<std::int32_t>(const Value& value) {
  if (const auto number = value.number()) return number->intValue();
  if (const auto text = value.string()) {
    return static_cast<std::int32_t>(integerReading(*text, 0x80000000U, 0x7FFFFFFFU));
  }
  throwUnrecognized(value, "intValue");
}

template <>
std::int64_t scalarReading<std::int64_t>(const Value& value) {
  if (const auto number = value.number()) return number->longLongValue();
  if (const auto text = value.string()) {
    return static_cast<std::int64_t>(integerReading(*text, kInt64Lowest, kInt64Lowest - 1));
  }
  throwUnrecognized(value, "longLongValue");
}

template <>
std::uint64_t scalarReading<std::uint64_t>(const Value& value) {
  if (const auto number = value.number()) return number->unsignedLongLongValue();
  if (const auto text = value.string()) {
    return integerReading(*text, kInt64Lowest, std::numeric_limits<std::uint64_t>::max());
  }
  throwUnrecognized(value, "unsignedLongLongValue");
}

template <>
double scalarReading<double>(const Value& value) {
  if (const auto number = value.number()) return number->doubleValue();
  if (const auto text = value.string()) return realReading(*text);
  throwUnrecognized(value, "doubleValue");
}

template <>
float scalarReading<float>(const Value& value) {
  if (const auto text = value.string()) return Number(Value(realReading(*text))).floatValue();
  if (const auto number = value.number()) return number->floatValue();
  throwUnrecognized(value, "floatValue");
}

}  // namespace orvanta
