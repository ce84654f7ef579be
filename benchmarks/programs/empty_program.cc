// Does nothing; with an argument it prints its peak resident size.
#include "ProcessFigures.h"

int main(int argc, char** /*argv*/) {
  if (argc > 1) std::printf("%ld\n", orvanta::benchmarks::statusKiB("VmHWM:"));
}
