#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// The system calls that describe the device.
///
/// Called by OrvantaAppDeviceInfoUtil on its caller's thread.
///
/// Requirements for implementers:
/// - Read the current state on every call. Safe from any thread.
/// - Report a failure by the return value. An orvanta::Exception may be thrown: it reaches the
///   caller of OrvantaAppDeviceInfoUtil, and ends the search of `connectionType`.
class SystemCalls {
 public:
  /// One address of a network interface.
  struct InterfaceAddress {
    std::string name;
    int family = 0;  // 2 (AF_INET) for IPv4; 0 if the entry has no address
  };
  /// host_statistics with HOST_VM_INFO (2) and a count of 15.
  struct VMStatistics {
    std::uint64_t freeCount = 0;  // pages
    std::uint64_t pageSize = 0;   // bytes, the kernel's vm_page_size
  };

  virtual ~SystemCalls() = default;
  /// Returns the bytes of a value: "hw.machine" a zero-terminated string, "hw.cputype" 4 bytes in
  /// host byte order. Returns nullopt on failure.
  virtual std::optional<std::string> sysctlbyname(std::string_view name) = 0;
  /// Returns the `machine` field, UTF-8; nullopt on failure.
  virtual std::optional<std::string> uname() = 0;
  /// Returns the addresses in the system's order; empty on failure. Release the system's list.
  virtual std::vector<InterfaceAddress> getifaddrs() = 0;
  /// Returns nullopt on failure.
  virtual std::optional<VMStatistics> hostStatistics() = 0;
  /// Returns whether the file can be opened for reading. Close it before returning.
  virtual bool fopen(const std::string& path) = 0;
};

}  // namespace orvanta
