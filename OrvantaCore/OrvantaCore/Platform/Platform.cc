#include "orvanta/Platform/Platform.h"

#include <atomic>

namespace orvanta {

static constinit std::atomic<Platform*> processPlatform = nullptr;

void Platform::setCurrent(Platform* platform) { processPlatform = platform; }

Platform& Platform::current() {
  static Platform none;
  if (PlatformOverride::current_ != nullptr) return *PlatformOverride::current_;
  Platform* const platform = processPlatform;
  return platform != nullptr ? *platform : none;
}

}  // namespace orvanta
