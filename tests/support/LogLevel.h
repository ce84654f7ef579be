#pragma once

#include "orvanta/Model/Mapping/OrvantaLogger.h"

namespace orvanta::testing {

/// Changes the log level during its lifetime.
class LogLevel {
 public:
  explicit LogLevel(std::int64_t level) { OrvantaLogger::setLogLevel(level); }
  LogLevel(const LogLevel&) = delete;
  LogLevel& operator=(const LogLevel&) = delete;
  ~LogLevel() { OrvantaLogger::setLogLevel(previous_); }

 private:
  std::int64_t previous_ = OrvantaLogger::logLevel();
};

}  // namespace orvanta::testing
