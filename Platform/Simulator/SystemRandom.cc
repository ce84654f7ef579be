#include "orvanta/Simulator/SystemRandom.h"

#include <random>

namespace orvanta {

std::uint32_t SystemRandom::uniform(std::uint32_t upperBound) {
  if (upperBound == 0) return 0;
  std::random_device device;
  return std::uniform_int_distribution<std::uint32_t>(0, upperBound - 1)(device);
}

}  // namespace orvanta
