#pragma once

#include <compare>
#include <concepts>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

/// A number of any of the five kinds, converted as the platform converts it. No conversion fails:
/// integers are taken modulo the target's width; floating-point numbers are truncated and clamped
/// to the signed 64-bit range first (for unsigned 64-bit to -2^63 … 2^64-1), and NaN is 0.
class Number {
 public:
  explicit Number(const Value& value) noexcept : kind_(value.kind()), bits_(value.word(1)) {}

  Kind kind() const noexcept { return kind_; }
  bool isBoolean() const noexcept { return kind_ == Kind::boolean; }
  bool isReal() const noexcept { return kind_ == Kind::real || kind_ == Kind::real32; }

  bool boolValue() const noexcept;  // true unless zero, also for NaN
  std::int32_t intValue() const noexcept { return static_cast<std::int32_t>(longLongValue()); }
  std::int64_t longLongValue() const noexcept;
  std::uint64_t unsignedLongLongValue() const noexcept;
  double doubleValue() const noexcept;
  float floatValue() const noexcept;

  /// What "%@" prints: integers in decimal, booleans as 1 and 0, doubles with 16 significant
  /// digits, floats with 7.
  std::string description() const;

  /// By exact value across kinds. 0 and -0.0 differ; a NaN equals a NaN.
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

/// Marks an integer property that is not set and therefore not written. A signed or unsigned
/// integer of this value marks; a double of 2^63 does not.
inline constexpr std::int64_t kUnsetInteger = 9223372036854775807;
inline bool isUnsetInteger(const Value& value) noexcept {
  return (value.kind() == Kind::integer || value.kind() == Kind::unsignedInteger) &&
         Number(value).unsignedLongLongValue() == static_cast<std::uint64_t>(kUnsetInteger);
}

// ---- Reading a value as a scalar ----
//
// A number is converted as above. A string is read as the platform reads it, regardless of the
// locale: white space, a sign and decimal digits up to the first other character, 0 without a
// digit, clamped to the width of T (a negative number for an unsigned T is clamped to -2^63 and
// then wraps). For floating point it is the longest decimal number with an optional exponent, else
// 0; a number that is too large is infinity. Any other value throws the invalid-argument exception.

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

/// Reads a string as a floating-point number.
double realReading(std::string_view string) noexcept;

/// Reads a string as a boolean: true if after white space, a sign and zeros there is a Y, y, T, t
/// or a digit from 1 to 9.
bool booleanReading(std::string_view string) noexcept;

}  // namespace orvanta
