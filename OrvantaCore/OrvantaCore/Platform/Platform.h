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

/// A version of the operating system.
struct OperatingSystemVersion {
  int major = 0;
  int minor = 0;
  int patch = 0;
  auto operator<=>(const OperatingSystemVersion&) const = default;
};

/// The process-wide services of the platform. A program sets one platform at its start. A service
/// is asked for whenever it is used, from any thread, and lives as long as its platform; one that a
/// platform does without is nullptr, with the consequence told at each.
class Platform {
 public:
  virtual ~Platform() = default;

  /// None: log entries are dropped.
  virtual SystemLog* systemLog() { return nullptr; }
  /// None: it is always 1970-01-01.
  virtual Clock* clock() { return nullptr; }
  /// None: every draw is 0.
  virtual RandomSource* randomSource() { return nullptr; }
  /// The class of that name, or nullptr where its framework is not there.
  virtual RuntimeClass* classNamed(std::string_view /*name*/) { return nullptr; }
  /// The one long-lived notification center of the process, which is kept weakly. None: categories
  /// are never registered, and what waits for that waits for ever.
  virtual std::shared_ptr<UNUserNotificationCenter> currentNotificationCenter() { return nullptr; }
  /// These four go together; without them media is not attached.
  virtual NSURLSession* sharedSession() { return nullptr; }
  virtual NSFileManager* defaultManager() { return nullptr; }
  virtual TypeIdentifiers* typeIdentifiers() { return nullptr; }
  virtual UNNotificationAttachmentFactory* attachments() { return nullptr; }
  /// Without one of these two a notification does not become a communication notification.
  virtual Images* images() { return nullptr; }
  virtual Intents* intents() { return nullptr; }
  /// None: every key stands for itself, and there is no information about the application.
  virtual NSBundle* mainBundle() { return nullptr; }
  /// What the device is like. Without one of these, OrvantaAppDeviceInfoUtil answers what it tells
  /// for a missing fact.
  virtual UIDevice* currentDevice() { return nullptr; }
  virtual UIScreen* mainScreen() { return nullptr; }
  virtual CTTelephonyNetworkInfo* telephonyNetworkInfo() { return nullptr; }
  virtual NSProcessInfo* processInfo() { return nullptr; }
  virtual FileSystems* fileSystems() { return nullptr; }
  virtual SystemCalls* systemCalls() { return nullptr; }
  virtual OperatingSystemVersion operatingSystemVersion() { return {}; }

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

}  // namespace orvanta
