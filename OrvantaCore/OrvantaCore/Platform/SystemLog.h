#pragma once

#include <string_view>

namespace orvanta {

/// The platform's system log.
///
/// An implementer takes one finished entry a call, UTF-8, line breaks included, from any thread,
/// and neither throws nor calls back into the component. Filtering by level has happened before.
class SystemLog {
 public:
  virtual ~SystemLog() = default;
  virtual void write(std::string_view entry) noexcept = 0;
};

}  // namespace orvanta
