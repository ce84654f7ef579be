#pragma once

#include <cstdint>
#include <string>

namespace orvanta {

/// A point in time: seconds since 1970-01-01 00:00 UTC, as a double.
struct Date {
  double secondsSince1970 = 0.0;

  friend bool operator==(const Date&, const Date&) = default;

  /// The date `milliseconds` after 1970: the quotient by 1000.0, not rounded further.
  static Date fromMilliseconds(std::int64_t milliseconds) {
    return {static_cast<double>(milliseconds) / 1000.0};
  }
  /// Milliseconds since 1970, truncated toward zero and clamped to 64 bits; 0 for NaN.
  std::int64_t milliseconds() const;
  /// Such as "2017-07-14 02:40:00 +0000": in UTC, without the fraction of a second.
  std::string description() const;
};

}  // namespace orvanta
