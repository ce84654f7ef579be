#include "orvanta/Simulator/RecordingLog.h"

namespace orvanta {

void RecordingLog::write(std::string_view entry) noexcept {
  const std::lock_guard guard(lock_);
  try {
    entries_.push_back(filter_ ? filter_(entry) : std::string(entry));
    out_ << entries_.back() << std::flush;
  } catch (const std::exception&) {
    // The component must go on when its log cannot be written; the entry is lost.
    return;
  }
}

std::vector<std::string> RecordingLog::entries() const {
  const std::lock_guard guard(lock_);
  return entries_;
}

}  // namespace orvanta
