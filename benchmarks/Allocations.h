#pragma once

#include <cstdint>

namespace orvanta::benchmarks {

/// How often memory was asked for since the program's start, by whatever part of it, and how much.
struct Allocations {
  std::int64_t count = 0;
  std::int64_t bytes = 0;
};
Allocations allocations();

}  // namespace orvanta::benchmarks
