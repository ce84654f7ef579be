#pragma once

#include <cstdio>
#include <cstring>

namespace orvanta::benchmarks {

/// The highest resident size of this process so far, in KiB; -1 when it cannot be told.
inline long peakResidentKiB() {
  long peak = -1;
  char line[256];
  std::FILE* status = std::fopen("/proc/self/status", "r");
  while (status != nullptr && std::fgets(line, sizeof line, status) != nullptr) {
    if (std::strncmp(line, "VmHWM:", 6) == 0) std::sscanf(line + 6, "%ld", &peak);
  }
  if (status != nullptr) std::fclose(status);
  return peak;
}

}  // namespace orvanta::benchmarks
