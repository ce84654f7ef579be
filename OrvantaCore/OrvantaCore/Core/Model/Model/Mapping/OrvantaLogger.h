#pragma once

#include <atomic>
#include <cstdint>
#include <string_view>

namespace orvanta {

/// The log level of the process: up to 0 nothing is logged, from 1 (the default) errors, from 2
/// also debug messages.
class OrvantaLogger {
 public:
  static std::int64_t logLevel() noexcept { return level_.load(std::memory_order_relaxed); }
  static void setLogLevel(std::int64_t level) noexcept {
    level_.store(level, std::memory_order_relaxed);
  }

 private:
  inline static constinit std::atomic<std::int64_t> level_{1};
};

/// The place that a log line names. Its line number is part of the log format and does not follow
/// the source.
struct LogSite {
  std::string_view method;  // "-[Class selector]", "+[…" for a class method
  std::string_view file;    // without extension
  int line;
};

/// Writes "\n\n<glyph> <method> (<file>:<line>) <glyph>\n<message>\n\n" to the system log.
void writeLogLine(std::string_view glyph, const LogSite& site, std::string_view message);

/// Log an error or a debug message. The message is a callable that returns it; it is called only if
/// the level is high enough.
template <class MakeMessage>
void logError(const LogSite& site, MakeMessage&& makeMessage) {
  if (OrvantaLogger::logLevel() >= 1) writeLogLine("❗", site, makeMessage());
}
template <class MakeMessage>
void logDebug(const LogSite& site, MakeMessage&& makeMessage) {
  if (OrvantaLogger::logLevel() >= 2) writeLogLine("🦋", site, makeMessage());
}

}  // namespace orvanta
