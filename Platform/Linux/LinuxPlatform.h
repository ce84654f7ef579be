#pragma once

#include <mutex>
#include <ostream>
#include <string>
#include <vector>

#include "Platform/Interface/Platform.h"

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
  explicit RecordingLog(std::ostream& out) : out_(out) {}
  void write(std::string_view entry) noexcept override;
  std::vector<std::string> entries() const;

 private:
  std::ostream& out_;
  mutable std::mutex lock_;
  std::vector<std::string> entries_;
};

/// The platform of this host.
class LinuxPlatform final : public Platform {
 public:
  explicit LinuxPlatform(std::ostream& logStream) : log_(logStream) {}

  SystemLog* systemLog() override { return &log_; }
  Clock* clock() override { return &clock_; }

  const RecordingLog& log() const { return log_; }

 private:
  RecordingLog log_;
  SystemClock clock_;
};

}  // namespace orvanta
