// Measures reading and writing models, this project's and its peers'. A Google Benchmark program,
// with two commands of its own for scripts/bench: `repeat` and `inbox`.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <stdexcept>
#include <string>

#include "Allocations.h"
#include "Implementation.h"

namespace orvanta::benchmarks {

namespace {

struct Row {
  std::string name;  // "workload/implementation"
  Operation operation;
};

std::vector<Row> rows(const Workloads& workloads) {
  std::vector<Row> all;
  for (const Implementation& implementation : implementations()) {
    for (Operation& operation : implementation.operations(workloads)) {
      all.push_back({std::string(operation.workload).append("/").append(implementation.name),
                     std::move(operation)});
    }
  }
  return all;
}

/// Throws unless all implementations of a workload return the same result.
void compare(const std::vector<Row>& rows) {
  std::map<std::string_view, Value> results;
  for (const auto& [name, operation] : rows) {
    if (!operation.run()) throw std::runtime_error(name + " fails");
    if (!operation.result) continue;
    const Value result = operation.result();
    const auto [first, isNew] = results.try_emplace(operation.workload, result);
    if (result.isNil() || result != first->second) {
      throw std::runtime_error(name + " has another result than the others");
    }
  }
}

void measure(benchmark::State& state, const Operation& operation) {
  constexpr std::int64_t kCounted = 4;
  const Allocations before = allocations();
  for (std::int64_t i = 0; i < kCounted; ++i) operation.run();
  const Allocations after = allocations();
  for (auto _ : state) benchmark::DoNotOptimize(operation.run());
  state.counters["allocations"] = static_cast<double>(after.count - before.count) / kCounted;
  state.counters["bytes"] = static_cast<double>(after.bytes - before.bytes) / kCounted;
}

/// Runs one operation a number of times, to count its instructions.
int repeat(const std::vector<Row>& rows, std::string_view wanted, long count) {
  for (const auto& [name, operation] : rows) {
    if (name != wanted) continue;
    bool done = true;
    for (; count > 0; --count) done = operation.run() && done;
    return done ? 0 : 1;
  }
  std::fprintf(stderr, "no operation \"%s\"\n", std::string(wanted).c_str());
  return 2;
}

int run(int argc, char** argv) {
  const Workloads workloads;
  const std::vector<Row> all = rows(workloads);
  if (argc == 4 && std::string_view(argv[1]) == "repeat") {
    return repeat(all, argv[2], std::atol(argv[3]));
  }
  if (argc == 2 && std::string_view(argv[1]) == "inbox") {
    std::fputs(workloads.inbox.c_str(), stdout);
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  compare(all);
  for (const Row& row : all) {
    benchmark::RegisterBenchmark(row.name.c_str(),
                                 [&](benchmark::State& state) { measure(state, row.operation); });
  }
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

}  // namespace

}  // namespace orvanta::benchmarks

int main(int argc, char** argv) try {
  return orvanta::benchmarks::run(argc, argv);
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
