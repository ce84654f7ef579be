#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

/// A decimal number of up to 38 significant digits times a power of ten from -128 to 127, or NaN.
/// What fits is exact. Digits beyond the 38th, or below 10^-128, are dropped (toward zero unless a
/// function says otherwise; a difference may then be one off in its last digit); a number that is
/// too large is NaN, and so is everything that is made from a NaN. Nothing throws.
class DecimalNumber {
 public:
  DecimalNumber() noexcept = default;  // zero
  explicit DecimalNumber(std::int64_t number) noexcept;
  static DecimalNumber notANumber() noexcept;
  /// The longest decimal number at the front of a text: white space, a sign, digits with a period
  /// and an exponent; whatever the locale. NaN when there is no digit.
  static DecimalNumber decimalNumberWithString(std::string_view text) noexcept;

  DecimalNumber subtracting(const DecimalNumber& other) const noexcept;
  DecimalNumber multiplyingBy(const DecimalNumber& other) const noexcept;
  DecimalNumber multiplyingByPowerOf10(int power) const noexcept;
  /// The quotient rounded toward minus infinity to an integer, or to 38 digits where it has more
  /// before the period. By zero: NaN.
  DecimalNumber dividingByRoundingDown(const DecimalNumber& divisor) const noexcept;

  bool isNaN() const noexcept { return nan_; }
  /// Truncated toward zero and clamped to the 64-bit range; a NaN is 0.
  std::int64_t longLongValue() const noexcept;
  /// All digits with a period and no exponent: "-0.05", "4700"; or "NaN".
  std::string stringValue() const;

  /// By value; a NaN equals a NaN and stands below every number.
  friend bool operator==(const DecimalNumber&, const DecimalNumber&) noexcept = default;
  friend std::strong_ordering operator<=>(const DecimalNumber& a, const DecimalNumber& b) noexcept;

 private:
  __extension__ typedef unsigned __int128 Mantissa;  // NOLINT(modernize-use-using)

  /// The number of these parts in its one form: the exponent is the greatest possible, zero is 0.
  static DecimalNumber make(bool negative, Mantissa mantissa, std::int64_t exponent) noexcept;
  static const Mantissa kLimit;  // 10^38

  Mantissa mantissa_ = 0;  // below kLimit
  int exponent_ = 0;
  bool negative_ = false;
  bool nan_ = false;
};

}  // namespace orvanta
