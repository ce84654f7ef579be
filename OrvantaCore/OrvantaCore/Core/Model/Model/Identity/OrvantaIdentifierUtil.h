#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "orvanta/Foundation/DecimalNumber.h"

namespace orvanta {

/// Makes identifiers. From any thread.
class OrvantaIdentifierUtil {
 public:
  OrvantaIdentifierUtil() = delete;

  /// The digits of base 62, from 0 to 61.
  static constexpr std::string_view kBase62Digits =
      "abcdefghijklmnopqrstuvwxyz1234567890ABCDEFGHIJKLMNOPQRSTUVWXYZ";

  /// The device's advertising identifier as its UUID's text; none where the platform has no
  /// "ASIdentifierManager". Whether the user allows tracking is not asked here.
  static std::optional<std::string> advertisingId();

  /// A random number from 1 to 65534 and behind it the nanoseconds since 1970 of the platform
  /// clock's steady wall time: 20 to 24 digits in this century and the next two.
  static DecimalNumber generateShortIdentifierDecimalNumber();
  /// The number's digits of base 62, the least significant first. Zero has none. Takes an integer
  /// from 0 to below 10^38; empty for anything else.
  static std::string base62String(const DecimalNumber& number);
  /// The text of a new number; 11 to 14 characters for those digits.
  static std::string generateShortIdentifier();
};

}  // namespace orvanta
