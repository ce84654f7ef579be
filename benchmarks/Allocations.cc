#include "Allocations.h"

#include <cerrno>
#include <cstddef>

// These definitions replace the C library's for the whole process, `operator new` included. The
// counters are not atomic: the benchmark has one thread.

namespace {
constinit orvanta::benchmarks::Allocations total;

void* counted(void* memory, std::size_t bytes) {
  ++total.count;
  total.bytes += static_cast<std::int64_t>(bytes);
  return memory;
}
}  // namespace

orvanta::benchmarks::Allocations orvanta::benchmarks::allocations() { return total; }

extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming): the C library's names
void* __libc_malloc(std::size_t bytes);
void* __libc_calloc(std::size_t count, std::size_t bytes);
void* __libc_realloc(void* memory, std::size_t bytes);
void* __libc_memalign(std::size_t alignment, std::size_t bytes);

void* malloc(std::size_t bytes) { return counted(__libc_malloc(bytes), bytes); }
void* calloc(std::size_t count, std::size_t bytes) {
  return counted(__libc_calloc(count, bytes), count * bytes);
}
void* realloc(void* memory, std::size_t bytes) {
  return counted(__libc_realloc(memory, bytes), bytes);
}
void* aligned_alloc(std::size_t alignment, std::size_t bytes) {
  return counted(__libc_memalign(alignment, bytes), bytes);
}
int posix_memalign(void** memory, std::size_t alignment, std::size_t bytes) {
  *memory = counted(__libc_memalign(alignment, bytes), bytes);
  return *memory != nullptr ? 0 : ENOMEM;
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)
}
