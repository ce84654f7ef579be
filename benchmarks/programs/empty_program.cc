// Nothing, or with an argument the resident size of nothing.
#include "ProcessFigures.h"

int main(int argc, char** /*argv*/) {
  if (argc > 1) std::printf("%ld\n", orvanta::benchmarks::statusKiB("VmHWM:"));
}
