#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

/// A decimal number of up to 38 significant digits with an exponent from -128 to 127, or NaN. A
/// result that fits is exact. Digits after the 38th, and those below 10^-128, are truncated unless
/// a function says otherwise; a difference may then be off by one in its last digit. A result that
/// is too large is NaN, and so is any result of a NaN. No function throws.
class DecimalNumber {
 public:
  DecimalNumber() noexcept = default;  // zero
  explicit DecimalNumber(std::int64_t number) noexcept;
  static DecimalNumber notANumber() noexcept;
  /// Parses the longest prefix of white space, a sign, digits with a period, and an exponent,
  /// regardless of the locale. Returns NaN if there is no digit.
  static DecimalNumber decimalNumberWithString(std::string_view string) noexcept;

  DecimalNumber subtracting(const DecimalNumber& other) const noexcept;
  DecimalNumber multiplyingBy(const DecimalNumber& other) const noexcept;
  DecimalNumber multiplyingByPowerOf10(int power) const noexcept;
  /// Returns the quotient rounded toward minus infinity, to an integer or to 38 digits if it has
  /// more before the period; NaN if the divisor is zero.
  DecimalNumber dividingByRoundingDown(const DecimalNumber& divisor) const noexcept;

  bool isNaN() const noexcept { return nan_; }
  /// Truncated toward zero and clamped to 64 bits; 0 for NaN.
  std::int64_t longLongValue() const noexcept;
  /// All digits without an exponent, such as "-0.05" and "4700"; or "NaN".
  std::string stringValue() const;

  /// By value. A NaN equals a NaN and is less than every number.
  friend bool operator==(const DecimalNumber&, const DecimalNumber&) noexcept = default;
  friend std::strong_ordering operator<=>(const DecimalNumber& a, const DecimalNumber& b) noexcept;

 private:
  __extension__ typedef unsigned __int128 Mantissa;  // NOLINT(modernize-use-using)

  /// Normalizes to the largest exponent that keeps the value; 0 for zero.
  static DecimalNumber make(bool negative, Mantissa mantissa, std::int64_t exponent) noexcept;
  static const Mantissa kLimit;  // 10^38

  Mantissa mantissa_ = 0;  // below kLimit
  int exponent_ = 0;
  bool negative_ = false;
  bool nan_ = false;
};

}  // namespace orvanta
