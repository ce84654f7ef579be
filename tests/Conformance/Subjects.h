#pragma once

#include <gtest/gtest.h>

#include "orvanta/Linux/FolderDeviceFiles.h"
#include "orvanta/Linux/FolderStateStore.h"
#include "orvanta/Simulator/Event.h"
#include "orvanta/Simulator/EventLoop.h"
#include "support/FakePlatform.h"
#include "support/TemporaryFolder.h"
#include "support/Values.h"

// A conformance suite checks what an interface promises. It runs on subjects, one per
// implementation, which offer the service and what the suite needs to set it up.

namespace orvanta::testing {

/// The base of subjects on a simulated device whose files are in a folder.
struct LinuxSubject {
  static constexpr const char* kName = "Linux";
  void runAll() { loop.run(); }

  TemporaryFolder folder;
  FolderDeviceFiles files{folder.path()};
  FolderStateStore state{folder.path()};
  EventLoop loop;
  EventLog log{loop};
};

/// The base of subjects on a simulated device in memory.
struct MemorySubject {
  static constexpr const char* kName = "Memory";
  void runAll() { loop.run(); }

  InMemoryDeviceFiles files;
  InMemoryStateStore state;
  EventLoop loop;
  EventLog log{loop};
};

/// The base of subjects on the tests' double.
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
