#pragma once

#include <atomic>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/Platform/CoreTelephony.h"
#include "orvanta/Platform/NSBundle.h"
#include "orvanta/Platform/NSFileManager.h"
#include "orvanta/Platform/NSProcessInfo.h"
#include "orvanta/Platform/Platform.h"
#include "orvanta/Platform/SystemCalls.h"
#include "orvanta/Platform/UIKit.h"
#include "orvanta/Simulator/DeviceProfile.h"

namespace orvanta {

/// The platform of a device with a profile: everything that device information is collected from.
/// Facts that the profile does not have are unknown. The log must outlive it.
class SimulatedDevice final : public Platform,
                              private UIDevice,
                              private UIScreen,
                              private CTTelephonyNetworkInfo,
                              private NSProcessInfo,
                              private FileSystems,
                              private SystemCalls,
                              private NSBundle {
 public:
  explicit SimulatedDevice(DeviceProfile profile, SystemLog* log = nullptr)
      : profile_(std::move(profile)), log_(log) {}

  SystemLog* systemLog() override { return log_; }
  OperatingSystemVersion operatingSystemVersion() override { return profile_.version; }
  NSBundle* mainBundle() override { return this; }
  UIDevice* currentDevice() override { return this; }
  /// None when the profile has none.
  UIScreen* mainScreen() override { return profile_.screen ? this : nullptr; }
  CTTelephonyNetworkInfo* telephonyNetworkInfo() override { return this; }
  NSProcessInfo* processInfo() override { return this; }
  FileSystems* fileSystems() override { return this; }
  SystemCalls* systemCalls() override { return this; }

 private:
  std::string systemVersion() override { return profile_.systemVersion; }
  void setBatteryMonitoringEnabled(bool enabled) override { monitorsBattery_ = enabled; }
  float batteryLevel() override;
  std::int64_t orientation() override { return profile_.orientation; }

  CGSize boundsSize() override { return profile_.screen->points; }
  double scale() override { return profile_.screen->scale; }

  std::vector<Ref<CTCarrier>> serviceSubscriberCellularProviders() override;
  Ref<CTCarrier> subscriberCellularProvider() override;
  std::optional<std::string> currentRadioAccessTechnology() override { return profile_.radio; }

  std::uint64_t physicalMemory() override;

  std::string NSHomeDirectory() override;
  Attributes attributesOfFileSystemForPath(const std::string& path) override;

  std::optional<std::string> sysctlbyname(std::string_view name) override;
  std::optional<std::string> uname() override;
  std::vector<InterfaceAddress> getifaddrs() override;
  std::optional<VMStatistics> hostStatistics() override;
  bool fopen(const std::string& path) override;

  std::string localizedStringForKey(std::string_view key) override { return std::string(key); }
  Dictionary infoDictionary() override { return profile_.bundle; }
  std::vector<std::string> preferredLocalizations() override;

  const DeviceProfile profile_;
  SystemLog* log_;
  std::atomic<bool> monitorsBattery_{false};
};

}  // namespace orvanta
