#pragma once

#include <cstdint>

namespace orvanta {

/// Where chance comes from (`arc4random_uniform`). Asked from any thread.
class RandomSource {
 public:
  virtual ~RandomSource() = default;
  /// A number from 0 to below the bound, each as likely as any other; 0 for a bound of 0.
  virtual std::uint32_t uniform(std::uint32_t upperBound) = 0;
};

}  // namespace orvanta
