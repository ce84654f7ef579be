#pragma once

#include <compare>
#include <concepts>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

/// A number of any of the five kinds. Conversions never fail and never round where they need not:
/// integers are taken modulo the target's width; doubles are truncated and clamped to the signed
/// 64-bit range first (for unsigned 64-bit to -2^63 … 2^64-1), NaN being 0.
class Number {
 public:
  explicit Number(const Value& value) noexcept : kind_(value.kind()), bits_(value.word(1)) {}

  Kind kind() const noexcept { return kind_; }
  bool isBoolean() const noexcept { return kind_ == Kind::boolean; }
  bool isReal() const noexcept { return kind_ == Kind::real || kind_ == Kind::real32; }

  bool boolValue() const noexcept;  // not equal to zero; a NaN is true
  std::int32_t intValue() const noexcept { return static_cast<std::int32_t>(longLongValue()); }
  std::int64_t longLongValue() const noexcept;
  std::uint64_t unsignedLongLongValue() const noexcept;
  double doubleValue() const noexcept;
  float floatValue() const noexcept;

  /// The text of "%@": integers in decimal, booleans 1 and 0, doubles with 16 and floats with 7
  /// significant digits.
  std::string description() const;

  /// By exact value across kinds; 0 and -0.0 differ, a NaN equals itself.
  friend bool operator==(const Number& a, const Number& b) noexcept;
  std::size_t hash() const noexcept;

 private:
  friend class Value;
  Kind kind_;
  std::uint64_t bits_;
};

inline std::optional<Number> Value::number() const noexcept {
  if (!isNumber()) return std::nullopt;
  return Number(*this);
}

/// Marks an integer that was not given; a property that holds it is left out when written. Any
/// integer kind counts, a double of 2^63 does not.
inline constexpr std::int64_t kUnsetInteger = 9223372036854775807;
inline bool isUnsetInteger(const Value& value) noexcept {
  return (value.kind() == Kind::integer || value.kind() == Kind::unsignedInteger) &&
         Number(value).unsignedLongLongValue() == static_cast<std::uint64_t>(kUnsetInteger);
}

// ---- Readings of a value for a scalar property ----------------------------
//
// A number as above. Text: leading white space, a sign, decimal digits up to the first other
// character (none: 0), saturated at the width of T (an unsigned one at -2^63, then wrapped, and at
// its maximum); for floating point the longest decimal number with an optional exponent, else 0,
// overflowing to infinity. Any other value has no reading and throws the invalid-argument
// exception.

template <class T>
T scalarReading(const Value& value);
template <>
bool scalarReading<bool>(const Value& value);
template <>
std::int32_t scalarReading<std::int32_t>(const Value& value);
template <>
std::int64_t scalarReading<std::int64_t>(const Value& value);
template <>
std::uint64_t scalarReading<std::uint64_t>(const Value& value);
template <>
float scalarReading<float>(const Value& value);
template <>
double scalarReading<double>(const Value& value);

/// The reading of text for floating point.
double realReading(std::string_view text) noexcept;

/// True when text begins, after white space, a sign and zeros, with Y, y, T, t or a digit 1 to 9.
bool booleanReading(std::string_view text) noexcept;

}  // namespace orvanta
