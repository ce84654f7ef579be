#pragma once

#include <cstdint>

namespace orvanta::benchmarks {

/// Number and total size of the allocations of the whole process since it started.
struct Allocations {
  std::int64_t count = 0;
  std::int64_t bytes = 0;
};
Allocations allocations();

}  // namespace orvanta::benchmarks
