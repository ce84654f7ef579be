#pragma once

#include "orvanta/Platform/RandomSource.h"

namespace orvanta {

/// The machine's random source.
class SystemRandom final : public RandomSource {
 public:
  std::uint32_t uniform(std::uint32_t upperBound) override;
};

}  // namespace orvanta
