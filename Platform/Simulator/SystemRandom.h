#pragma once

#include "orvanta/Platform/RandomSource.h"

namespace orvanta {

/// The random source of the machine that runs the simulation.
class SystemRandom final : public RandomSource {
 public:
  std::uint32_t uniform(std::uint32_t upperBound) override;
};

}  // namespace orvanta
