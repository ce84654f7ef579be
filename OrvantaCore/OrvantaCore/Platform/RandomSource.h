#pragma once

#include <cstdint>

namespace orvanta {

/// Random numbers (`arc4random_uniform`).
///
/// Called by OrvantaIdentifierUtil once per short identifier, on its caller's thread.
///
/// Requirements for implementers: safe to call from any thread at the same time; seed it yourself;
/// do not fail.
class RandomSource {
 public:
  virtual ~RandomSource() = default;
  /// Returns a uniformly distributed number in [0, upperBound), without modulo bias; 0 if
  /// upperBound is 0.
  virtual std::uint32_t uniform(std::uint32_t upperBound) = 0;
};

}  // namespace orvanta
