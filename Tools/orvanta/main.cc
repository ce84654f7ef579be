#include <iostream>

#include "orvanta/Tool/Tool.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  return static_cast<int>(
      orvanta::tool::run(argc, argv, {.in = std::cin, .out = std::cout, .err = std::cerr}));
}
