#pragma once

#include <gtest/gtest.h>

#include <concepts>
#include <string>
#include <vector>

#include "orvanta/Conformance/Subject.h"
#include "orvanta/Conformance/Threads.h"
#include "orvanta/Platform/SystemLog.h"

namespace orvanta::conformance {

/// A subject of SystemLogConformance.
///
/// `entries()` returns the entries written so far, in their order.
template <class Subject>
concept SystemLogSubject = SubjectOf<Subject, SystemLog> && requires(Subject subject) {
  { subject.entries() } -> std::convertible_to<std::vector<std::string>>;
};

/// Checks what SystemLog promises:
///
///     struct LogSubject {
///       SystemLog& service() { return log; }
///       std::vector<std::string> entries() { return linesOf(log.path()); }
///       MyLog log;
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(MyPort, SystemLogConformance, LogSubject);
template <class Subject>
class SystemLogConformance : public ::testing::Test {
  static_assert(SystemLogSubject<Subject>);
};
TYPED_TEST_SUITE_P(SystemLogConformance);

TYPED_TEST_P(SystemLogConformance, TakesWholeEntriesFromAnyThread) {
  TypeParam subject;
  SystemLog& log = subject.service();
  const std::string entry(200, 'x');
  runTogether([&] {
    for (int i = 0; i < 100; ++i) log.write(entry);
  });
  EXPECT_EQ(subject.entries(), std::vector<std::string>(400, entry));
}

REGISTER_TYPED_TEST_SUITE_P(SystemLogConformance, TakesWholeEntriesFromAnyThread);

}  // namespace orvanta::conformance
