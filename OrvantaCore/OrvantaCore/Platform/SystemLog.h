#pragma once

#include <string_view>

namespace orvanta {

/// The system log.
///
/// Called by OrvantaLogger for each entry that passes the log level, on the thread that logs.
///
/// Requirements for implementers:
/// - Accept one complete entry per call: UTF-8, with line breaks. Write it unchanged.
/// - Keep entries whole when several threads write at the same time.
/// - Do not throw and do not call back into the library.
class SystemLog {
 public:
  virtual ~SystemLog() = default;
  virtual void write(std::string_view entry) noexcept = 0;
};

}  // namespace orvanta
