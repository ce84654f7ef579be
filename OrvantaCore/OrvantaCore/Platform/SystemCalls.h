#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// What is asked of the kernel. Everything is read afresh on every call, from any thread. The
/// return value says that a call failed; it may also throw an orvanta::Exception.
class SystemCalls {
 public:
  /// One address of a network interface.
  struct InterfaceAddress {
    std::string name;
    int family = 0;  // 2 for IPv4; 0 for an entry without address
  };
  /// Of flavour 2, HOST_VM_INFO, with a count of 15.
  struct VMStatistics {
    std::uint64_t freeCount = 0;  // pages
    std::uint64_t pageSize = 0;   // bytes, the kernel's vm_page_size
  };

  virtual ~SystemCalls() = default;
  /// The bytes of a value ("hw.machine": text with a terminating zero, "hw.cputype": 4 bytes in the
  /// machine's order); none on failure.
  virtual std::optional<std::string> sysctlbyname(std::string_view name) = 0;
  /// The machine field, UTF-8; none on failure.
  virtual std::optional<std::string> uname() = 0;
  /// In the system's order; empty on failure. The list is released by then.
  virtual std::vector<InterfaceAddress> getifaddrs() = 0;
  /// None on failure.
  virtual std::optional<VMStatistics> hostStatistics() = 0;
  /// Opens a file for reading and closes it at once; whether it could be opened.
  virtual bool fopen(const std::string& path) = 0;
};

}  // namespace orvanta
