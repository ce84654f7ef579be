#pragma once

#include <gtest/gtest.h>

#include <cstdint>

#include "orvanta/Conformance/Subject.h"
#include "orvanta/Conformance/Threads.h"
#include "orvanta/Platform/Clock.h"

namespace orvanta::conformance {

/// Checks what Clock promises:
///
///     struct MachClock {
///       Clock& service() { return clock; }
///       MyClock clock;
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(MyPort, ClockConformance, MachClock);
template <class Subject>
class ClockConformance : public ::testing::Test {
  static_assert(SubjectOf<Subject, Clock>);
};
TYPED_TEST_SUITE_P(ClockConformance);

TYPED_TEST_P(ClockConformance, NeverGoesBackOnAnyThread) {
  TypeParam subject;
  Clock& clock = subject.service();
  const std::int64_t start = clock.monotonicNanoseconds();
  runTogether([&] {
    std::int64_t last = start;
    for (int i = 0; i < 1000; ++i) {
      const std::int64_t now = clock.monotonicNanoseconds();
      EXPECT_LE(last, now);
      last = now;
    }
  });
  EXPECT_GE(clock.monotonicNanoseconds(), start);
}

REGISTER_TYPED_TEST_SUITE_P(ClockConformance, NeverGoesBackOnAnyThread);

}  // namespace orvanta::conformance
