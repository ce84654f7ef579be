#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "orvanta/Foundation/DecimalNumber.h"

namespace orvanta {

/// Creates identifiers. Safe from any thread.
class OrvantaIdentifierUtil {
 public:
  OrvantaIdentifierUtil() = delete;

  /// The digits of base 62, from 0 to 61.
  static constexpr std::string_view kBase62Digits =
      "abcdefghijklmnopqrstuvwxyz1234567890ABCDEFGHIJKLMNOPQRSTUVWXYZ";

  /// Returns the device's advertising identifier as a UUID string; nullopt if the platform has no
  /// "ASIdentifierManager". Does not check whether the user allows tracking: the platform returns
  /// zeros if not.
  static std::optional<std::string> advertisingId();

  /// Returns the digits of a random number from 1 to 65534, followed by those of the nanoseconds
  /// since 1970 (Clock::steadyWallNanoseconds): 20 to 24 digits until the year 2286.
  static DecimalNumber generateShortIdentifierDecimalNumber();
  /// Returns the number in base 62, least significant digit first; an empty string for 0 and for
  /// anything but an integer in [0, 10^38).
  static std::string base62String(const DecimalNumber& number);
  /// Returns a new number in base 62: 11 to 14 characters.
  static std::string generateShortIdentifier();
};

}  // namespace orvanta
