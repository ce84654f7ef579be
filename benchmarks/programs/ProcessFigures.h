#pragma once

#include <cstdio>
#include <cstring>

namespace orvanta::benchmarks {

/// Returns a field of /proc/self/status in KiB, or -1 if it cannot be read: "VmRSS:" is the
/// resident size, "VmHWM:" its peak.
inline long statusKiB(const char* name) {
  long size = -1;
  char line[256];
  std::FILE* status = std::fopen("/proc/self/status", "r");
  while (status != nullptr && std::fgets(line, sizeof line, status) != nullptr) {
    if (std::strncmp(line, name, std::strlen(name)) == 0) {
      std::sscanf(line + std::strlen(name), "%ld", &size);
    }
  }
  if (status != nullptr) std::fclose(status);
  return size;
}

}  // namespace orvanta::benchmarks
