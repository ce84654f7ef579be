#include <iostream>

#include "orvanta/Tool/CommandLine.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  return static_cast<int>(orvanta::tool::runCommandLine(
      argc, argv, {.in = std::cin, .out = std::cout, .err = std::cerr}));
}
