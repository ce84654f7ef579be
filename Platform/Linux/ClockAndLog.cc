#include "orvanta/Linux/ClockAndLog.h"

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

void RecordingLog::write(std::string_view entry) noexcept {
  const std::lock_guard guard(lock_);
  try {
    entries_.push_back(filter_ ? filter_(entry) : std::string(entry));
    out_ << entries_.back() << std::flush;
  } catch (const std::exception&) {
    // A log that cannot be written is no reason to fail; the entry is lost.
    return;
  }
}

std::vector<std::string> RecordingLog::entries() const {
  const std::lock_guard guard(lock_);
  return entries_;
}

}  // namespace orvanta
