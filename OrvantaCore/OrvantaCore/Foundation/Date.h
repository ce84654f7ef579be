#pragma once

#include <cstdint>
#include <string>

namespace orvanta {

/// A point in time: seconds since 1970-01-01 00:00 UTC, as a double.
struct Date {
  double secondsSince1970 = 0.0;

  friend bool operator==(const Date&, const Date&) = default;

  /// The date that many whole milliseconds after 1970: divided by 1000.0, nothing rounded.
  static Date fromMilliseconds(std::int64_t milliseconds) {
    return {static_cast<double>(milliseconds) / 1000.0};
  }
  /// Seconds times 1000.0, truncated toward zero, clamped to the 64-bit range; a NaN is 0.
  std::int64_t milliseconds() const;
  /// "2017-07-14 02:40:00 +0000": always UTC, the fraction dropped.
  std::string description() const;
};

}  // namespace orvanta
