#pragma once

#include <cstdint>

namespace orvanta {

/// Where time comes from. Both readings are asked for from any thread.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Nanoseconds since 1970-01-01 00:00 UTC.
  virtual std::int64_t wallNanoseconds() = 0;
  /// Nanoseconds since some fixed moment; never goes back.
  virtual std::int64_t monotonicNanoseconds() = 0;
};

}  // namespace orvanta
