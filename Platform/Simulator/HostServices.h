#pragma once

#include "orvanta/Platform/Clock.h"
#include "orvanta/Platform/NSBundle.h"
#include "orvanta/Platform/SystemLog.h"
#include "orvanta/Platform/UIKit.h"
#include "orvanta/Simulator/DeviceFiles.h"
#include "orvanta/Simulator/Downloader.h"
#include "orvanta/Simulator/EventLoop.h"
#include "orvanta/Simulator/StateStore.h"

namespace orvanta {

/// What a simulated device needs of the machine that it runs on. All of it must outlive the run.
struct HostServices {
  DeviceFiles& files;
  StateStore& state;
  Downloader* downloader = nullptr;  // null: the device is offline
  NSBundle* bundle = nullptr;        // null: every string is its key
  Images* images = nullptr;          // null: the bundle has no images
  Clock* clock = nullptr;            // null: it is always 1970-01-01
  SystemLog* log = nullptr;          // null: log entries are dropped
  EventLoop::Wait wait{};            // empty: the run takes no real time
};

}  // namespace orvanta
