#pragma once

#include "orvanta/Platform/Clock.h"

namespace orvanta {

/// The clocks of the machine that runs the simulation.
class SystemClock final : public Clock {
 public:
  std::int64_t wallNanoseconds() override;
  std::int64_t monotonicNanoseconds() override;
};

}  // namespace orvanta
