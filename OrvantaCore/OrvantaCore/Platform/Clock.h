#pragma once

#include <cstdint>
#include <mutex>

namespace orvanta {

/// Where time comes from. Both readings are asked for from any thread.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Nanoseconds since 1970-01-01 00:00 UTC.
  virtual std::int64_t wallNanoseconds() = 0;
  /// Nanoseconds since some fixed moment; never goes back.
  virtual std::int64_t monotonicNanoseconds() = 0;

  /// The wall time at the first call plus the monotonic time since then: nanoseconds since
  /// 1970-01-01 00:00 UTC that no later change of the clock moves.
  std::int64_t steadyWallNanoseconds() {
    std::call_once(started_, [this] {
      firstWall_ = wallNanoseconds();
      firstMonotonic_ = monotonicNanoseconds();
    });
    return firstWall_ + (monotonicNanoseconds() - firstMonotonic_);
  }

 private:
  std::once_flag started_;
  std::int64_t firstWall_ = 0;
  std::int64_t firstMonotonic_ = 0;
};

}  // namespace orvanta
