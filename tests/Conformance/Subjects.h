#pragma once

#include "orvanta/Linux/FolderDeviceFiles.h"
#include "orvanta/Linux/FolderStateStore.h"
#include "orvanta/Simulator/Event.h"
#include "orvanta/Simulator/EventLoop.h"
#include "support/FakePlatform.h"
#include "support/TemporaryFolder.h"

// What the subjects of the conformance suites share; Platform/Conformance/ describes subjects.

namespace orvanta::testing {

/// The base of subjects on a simulated device whose files are in a folder.
struct LinuxSubject {
  void runAll() { loop.run(); }

  TemporaryFolder folder;
  FolderDeviceFiles files{folder.path()};
  FolderStateStore state{folder.path()};
  EventLoop loop;
  EventLog log{loop};
};

/// The base of subjects on a simulated device in memory.
struct MemorySubject {
  void runAll() { loop.run(); }

  InMemoryDeviceFiles files;
  InMemoryStateStore state;
  EventLoop loop;
  EventLog log{loop};
};

/// The base of subjects on the tests' double.
struct DoubleSubject {
  void runAll() { platform.runAll(); }

  FakePlatform platform;
};

}  // namespace orvanta::testing
