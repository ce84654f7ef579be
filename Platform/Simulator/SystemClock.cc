#include "orvanta/Simulator/SystemClock.h"

#include <chrono>

namespace orvanta {

template <class ChronoClock>
static std::int64_t nanoseconds() {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(ChronoClock::now().time_since_epoch())
      .count();
}

std::int64_t SystemClock::wallNanoseconds() { return nanoseconds<std::chrono::system_clock>(); }

std::int64_t SystemClock::monotonicNanoseconds() {
  return nanoseconds<std::chrono::steady_clock>();
}

}  // namespace orvanta
