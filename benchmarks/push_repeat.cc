// Runs one operation of the push benchmark a number of times, for counting instructions: see
// scripts/count-instructions.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string_view>

#include "PushOperations.h"

int main(int argc, char** argv) try {
  using orvanta::benchmarks::PushOperations;
  if (argc != 3) {
    std::fputs("usage: push_repeat OPERATION COUNT\n", stderr);
    return 2;
  }
  const PushOperations operations;
  for (const PushOperations::Row& row : PushOperations::kAll) {
    if (row.name != argv[1]) continue;
    bool done = true;
    for (long left = std::atol(argv[2]); left > 0; --left) done = (operations.*row.run)() && done;
    return done ? 0 : 1;
  }
  std::fprintf(stderr, "no operation \"%s\"\n", argv[1]);
  return 2;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
