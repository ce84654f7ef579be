#pragma once

#include <cstdint>

namespace orvanta {

/// What is asked of the process. Read afresh on every call, from any thread; a call may throw an
/// orvanta::Exception.
class NSProcessInfo {
 public:
  virtual ~NSProcessInfo() = default;
  /// Bytes.
  virtual std::uint64_t physicalMemory() = 0;
};

}  // namespace orvanta
