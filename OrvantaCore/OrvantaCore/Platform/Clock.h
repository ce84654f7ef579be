#pragma once

#include <cstdint>
#include <mutex>

namespace orvanta {

/// The wall clock and the monotonic clock.
///
/// Called by OrvantaIdentifierUtil (short identifiers) and OrvantaKeyValueStoreObject (creation
/// dates), on their callers' threads.
///
/// Requirements for implementers:
/// - Both readings are safe to call from any thread at the same time and cannot fail.
/// - The monotonic clock never goes back, also as seen across threads. Its origin is arbitrary.
/// - The wall clock may be set, forward or back, while the process runs.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Nanoseconds since 1970-01-01 00:00 UTC.
  virtual std::int64_t wallNanoseconds() = 0;
  /// Nanoseconds since an arbitrary fixed moment.
  virtual std::int64_t monotonicNanoseconds() = 0;

  /// Returns the wall time at the first call plus the monotonic time since then, in nanoseconds
  /// since 1970-01-01 00:00 UTC: setting the clock later does not move it.
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
