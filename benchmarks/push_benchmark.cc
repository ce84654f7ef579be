// Times of reading and writing one push payload, and how often memory is asked for.
#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>

#include "PushOperations.h"

namespace {
std::atomic<std::int64_t> allocations{0};
}

void* operator new(std::size_t bytes) {
  allocations.fetch_add(1, std::memory_order_relaxed);
  if (void* memory = std::malloc(bytes)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*bytes*/) noexcept { std::free(memory); }

int main(int argc, char** argv) try {
  using orvanta::benchmarks::PushOperations;
  const PushOperations operations;
  for (const PushOperations::Row& row : PushOperations::kAll) {
    benchmark::RegisterBenchmark(std::string(row.name).c_str(), [&](benchmark::State& state) {
      const std::int64_t before = allocations.load();
      for (auto _ : state) benchmark::DoNotOptimize((operations.*row.run)());
      state.counters["allocations"] = benchmark::Counter(
          static_cast<double>(allocations.load() - before), benchmark::Counter::kAvgIterations);
      state.SetBytesProcessed(state.iterations() *
                              static_cast<std::int64_t>(operations.textBytes()));
    });
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
