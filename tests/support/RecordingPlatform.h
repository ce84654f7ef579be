#pragma once

#include <string>
#include <vector>

#include "orvanta/Platform/Platform.h"

namespace orvanta::testing {

/// Replaces the calling thread's platform during its lifetime: records log lines, and its clock
/// does not advance.
class RecordingPlatform final : public Platform, private SystemLog, private Clock {
 public:
  std::vector<std::string> log;
  std::int64_t now = 0;

  SystemLog* systemLog() override { return this; }
  Clock* clock() override { return this; }

 private:
  void write(std::string_view entry) noexcept override { log.emplace_back(entry); }
  std::int64_t wallNanoseconds() override { return now; }
  std::int64_t monotonicNanoseconds() override { return now; }

  PlatformOverride override_{*this};
};

}  // namespace orvanta::testing
