#pragma once

#include <compare>
#include <memory>
#include <string_view>
#include <utility>

#include "orvanta/Platform/Clock.h"
#include "orvanta/Platform/SystemLog.h"

namespace orvanta {

class CTTelephonyNetworkInfo;
class FileSystems;
class Images;
class Intents;
class NSBundle;
class NSFileManager;
class NSProcessInfo;
class NSURLSession;
class RandomSource;
class RuntimeClass;
class SystemCalls;
class TypeIdentifiers;
class UIDevice;
class UIScreen;
class UNNotificationAttachmentFactory;
class UNUserNotificationCenter;

struct OperatingSystemVersion {
  int major = 0;
  int minor = 0;
  int patch = 0;
  auto operator<=>(const OperatingSystemVersion&) const = default;
};

/// The services that the library needs from the system. A port derives from this class and
/// overrides the accessors of the services that it has.
///
///   class DevicePlatform final : public orvanta::Platform {
///    public:
///     orvanta::SystemLog* systemLog() override { return &log_; }
///     orvanta::Clock* clock() override { return &clock_; }
///    private:
///     DeviceLog log_;
///     DeviceClock clock_;
///   };
///
///   int main() {                                  // a program: once, before the first request
///     static DevicePlatform platform;
///     orvanta::Platform::setCurrent(&platform);
///   }
///
///   TEST(Log, WritesErrors) {                     // a test: for this thread, until the scope ends
///     RecordingPlatform platform;
///     const orvanta::PlatformOverride scope(platform);
///   }
///
/// Requirements for implementers:
/// - The library calls an accessor every time it uses the service, on any thread, including the
///   threads of the port's callbacks. Return the same object every time and do not block.
/// - The platform owns its services. They must outlive every use, pending callbacks included: let
///   them live as long as the process.
/// - Return nullptr for a service that does not exist. Each accessor documents the effect.
/// - Asynchronous operations complete exactly once, never before the call that started them has
///   returned, and on serial queues: the library takes no locks, so what one callback wrote must be
///   visible to the next.
/// - Accessors do not throw. Of the services only those from `currentDevice` on may throw an
///   orvanta::Exception; their headers say who receives it.
class Platform {
 public:
  virtual ~Platform() = default;

  /// Without it log entries are dropped.
  virtual SystemLog* systemLog() { return nullptr; }
  /// Without it the time is always 1970-01-01, and short identifiers contain no time.
  virtual Clock* clock() { return nullptr; }
  /// Without it every random number is 0: short identifiers differ by their time only.
  virtual RandomSource* randomSource() { return nullptr; }
  /// Returns the class of this name, nullptr if its framework is not available. The library asks
  /// for "ASIdentifierManager" only (see AdSupport.h).
  virtual RuntimeClass* classNamed(std::string_view /*name*/) { return nullptr; }
  /// The process-wide notification center; the extension holds it weakly. Without it categories are
  /// not registered, and a payload with buttons is delivered by the expiry only.
  virtual std::shared_ptr<UNUserNotificationCenter> currentNotificationCenter() { return nullptr; }
  /// Provide all four of these or none. Without them media is not attached.
  virtual NSURLSession* sharedSession() { return nullptr; }
  virtual NSFileManager* defaultManager() { return nullptr; }
  virtual TypeIdentifiers* typeIdentifiers() { return nullptr; }
  virtual UNNotificationAttachmentFactory* attachments() { return nullptr; }
  /// Without either of these two there are no communication notifications.
  virtual Images* images() { return nullptr; }
  virtual Intents* intents() { return nullptr; }
  /// Without it a localized string is its key, and the application's version and locale are nil.
  virtual NSBundle* mainBundle() { return nullptr; }
  /// Facts about the device. Without one of these six OrvantaAppDeviceInfoUtil returns the value
  /// that it documents for a missing fact.
  virtual UIDevice* currentDevice() { return nullptr; }
  virtual UIScreen* mainScreen() { return nullptr; }
  virtual CTTelephonyNetworkInfo* telephonyNetworkInfo() { return nullptr; }
  virtual NSProcessInfo* processInfo() { return nullptr; }
  virtual FileSystems* fileSystems() { return nullptr; }
  virtual SystemCalls* systemCalls() { return nullptr; }
  /// Communication notifications require 15.0.0, several carriers 12.0.0.
  virtual OperatingSystemVersion operatingSystemVersion() { return {}; }

  /// Returns the calling thread's platform (see PlatformOverride), else the process's, else one
  /// without services. Safe from any thread.
  static Platform& current();
  /// Sets the process's platform, which the caller owns; nullptr for none. Safe from any thread,
  /// but meant to be called once, before the first use.
  static void setCurrent(Platform* platform);
};

/// Replaces the platform of the calling thread until the end of the scope, for tests and for
/// programs that run everything on one thread. Overrides nest; destroy them in reverse order, on
/// the thread that created them. The caller owns the platform. Other threads, such as the port's
/// queues, are not affected.
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

}  // namespace orvanta
