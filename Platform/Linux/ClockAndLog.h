#pragma once

#include <functional>
#include <mutex>
#include <ostream>
#include <string>
#include <vector>

#include "orvanta/Platform/Clock.h"
#include "orvanta/Platform/SystemLog.h"

namespace orvanta {

/// The machine's clocks.
class SystemClock final : public Clock {
 public:
  std::int64_t wallNanoseconds() override;
  std::int64_t monotonicNanoseconds() override;
};

/// A system log that goes to a stream and is kept.
class RecordingLog final : public SystemLog {
 public:
  /// Entries pass through the filter on their way.
  using Filter = std::function<std::string(std::string_view)>;

  explicit RecordingLog(std::ostream& out) : out_(out) {}
  void setFilter(Filter filter) { filter_ = std::move(filter); }
  void write(std::string_view entry) noexcept override;
  std::vector<std::string> entries() const;

 private:
  std::ostream& out_;
  Filter filter_;
  mutable std::mutex lock_;
  std::vector<std::string> entries_;
};

}  // namespace orvanta
