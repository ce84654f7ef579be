#pragma once

#include <atomic>
#include <memory>
#include <utility>

#include "Platform/Interface/Clock.h"
#include "Platform/Interface/SystemLog.h"

namespace orvanta {

class UNUserNotificationCenter;

/// The process-wide services of the platform. A program sets one at its start; without one, and
/// for each service that an implementation leaves out, there is none: nothing is logged, and so on
/// as told at each.
class Platform {
 public:
  virtual ~Platform() = default;

  /// None: log entries are dropped.
  virtual SystemLog* systemLog() { return nullptr; }
  /// None: time stands still at 1970-01-01.
  virtual Clock* clock() { return nullptr; }
  /// The one long-lived notification center of the process; the caller may keep it weakly.
  virtual std::shared_ptr<UNUserNotificationCenter> currentNotificationCenter() { return nullptr; }

  /// The platform of the calling thread (see PlatformOverride), else the one of the process.
  static Platform& current();
  /// Sets the platform of the process, which must outlive every use; nullptr for none.
  static void setCurrent(Platform* platform);
};

/// While it lives, the calling thread sees another platform; for tests and parallel runs.
class PlatformOverride {
 public:
  explicit PlatformOverride(Platform& platform) : previous_(std::exchange(current_, &platform)) {}
  PlatformOverride(const PlatformOverride&) = delete;
  PlatformOverride& operator=(const PlatformOverride&) = delete;
  ~PlatformOverride() { current_ = previous_; }

 private:
  friend class Platform;
  inline static thread_local Platform* current_ = nullptr;
  Platform* previous_;
};

namespace detail {
inline constinit std::atomic<Platform*> processPlatform = nullptr;
}

inline void Platform::setCurrent(Platform* platform) { detail::processPlatform = platform; }

inline Platform& Platform::current() {
  static Platform none;
  if (PlatformOverride::current_ != nullptr) return *PlatformOverride::current_;
  Platform* const platform = detail::processPlatform;
  return platform != nullptr ? *platform : none;
}

}  // namespace orvanta
