#pragma once

#include <atomic>
#include <cstdint>
#include <string_view>

namespace orvanta {

/// Holds the process-wide log level: 0 and below write nothing, 1 (initial) writes error lines, 2
/// and more also debug lines.
class OrvantaLogger {
 public:
  static std::int64_t logLevel() noexcept { return level_.load(std::memory_order_relaxed); }
  static void setLogLevel(std::int64_t level) noexcept {
    level_.store(level, std::memory_order_relaxed);
  }

 private:
  inline static constinit std::atomic<std::int64_t> level_{1};
};

/// The place that a log line names. The line numbers are part of the log format and stay as they
/// are, wherever the call stands in the source.
struct LogSite {
  std::string_view method;  // "-[Class selector]", "+[…" for a class method
  std::string_view file;    // without extension
  int line;
};

/// Writes "\n\n<glyph> <method> (<file>:<line>) <glyph>\n<message>\n\n" to the system log.
void writeLogLine(std::string_view glyph, const LogSite& site, std::string_view message);

/// Error and debug lines. The message is a callable that makes the text; it is called only when
/// the level lets the line through.
template <class MakeMessage>
void logError(const LogSite& site, MakeMessage&& makeMessage) {
  if (OrvantaLogger::logLevel() >= 1) writeLogLine("❗", site, makeMessage());
}
template <class MakeMessage>
void logDebug(const LogSite& site, MakeMessage&& makeMessage) {
  if (OrvantaLogger::logLevel() >= 2) writeLogLine("🦋", site, makeMessage());
}

}  // namespace orvanta
