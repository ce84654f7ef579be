#pragma once

#include <cstdint>

namespace orvanta {

/// The machine as the process sees it.
///
/// Called by OrvantaAppDeviceInfoUtil::totalRAM on its caller's thread.
///
/// Requirements for implementers: safe from any thread. An orvanta::Exception may be thrown; it
/// reaches the caller of totalRAM.
class NSProcessInfo {
 public:
  virtual ~NSProcessInfo() = default;
  /// Bytes.
  virtual std::uint64_t physicalMemory() = 0;
};

}  // namespace orvanta
