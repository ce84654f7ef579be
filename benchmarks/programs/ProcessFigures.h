#pragma once

#include <cstdio>
#include <cstring>

namespace orvanta::benchmarks {

/// A line of this process's status in KiB, -1 when it cannot be told: "VmRSS:" is the resident
/// size, "VmHWM:" the highest so far.
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
