#pragma once

#include <gtest/gtest.h>

#include "orvanta/Linux/EventLoop.h"
#include "support/FakePlatform.h"
#include "support/TemporaryFolder.h"
#include "support/Values.h"

// A conformance suite checks what an interface promises. It runs on subjects, one per
// implementation, which offer the service and what the suite needs to set it up.

namespace orvanta::testing {

/// What the subjects on the host share.
struct HostSubject {
  static constexpr const char* kName = "Host";
  void runAll() { loop.run(); }

  TemporaryFolder folder;
  EventLoop loop;
  Timeline timeline{loop};
};

/// And those on the double.
struct DoubleSubject {
  static constexpr const char* kName = "Double";
  void runAll() { platform.runAll(); }

  FakePlatform platform;
};

struct SubjectNames {
  template <class Subject>
  static std::string GetName(int /*index*/) {  // NOLINT(readability-identifier-naming)
    return Subject::kName;
  }
};

}  // namespace orvanta::testing
