#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Platform/Platform.h"
#include "orvanta/Platform/SystemCalls.h"
#include "orvanta/Platform/UIKit.h"

namespace orvanta {

/// What a simulated device is like. What is not set is read from the machine; what a Linux machine
/// does not have is as it stands here.
struct DeviceProfile {
  struct Screen {
    CGSize points;
    double scale = 1.0;
  };

  std::string systemVersion = "17.0";
  OperatingSystemVersion version{17, 0, 0};  // the same as numbers
  std::optional<std::string> machine;        // of uname
  std::optional<std::string> hwMachine;      // of sysctlbyname; not set: as the machine
  std::optional<std::int32_t> cpuType;
  std::optional<Screen> screen;
  std::optional<float> battery;  // 0.0 to 1.0, or -1.0
  std::int64_t orientation = 0;
  std::vector<std::string> carriers;
  std::optional<std::string> radio;
  std::optional<std::vector<SystemCalls::InterfaceAddress>> interfaces;
  std::optional<std::uint64_t> physicalMemory;             // bytes, as the next three
  std::optional<std::optional<std::uint64_t>> freeMemory;  // set to none: reading it fails
  std::optional<std::uint64_t> diskSize;
  std::optional<std::uint64_t> diskFree;
  std::optional<std::optional<std::string>> locale;  // set to none: the bundle has no localization
  Dictionary bundle;                                 // the information dictionary
  std::optional<bool> bash;

  /// Throws InputError.
  static DeviceProfile fromDictionary(const Dictionary& given);
  /// A current phone, on which every fact is set.
  static DeviceProfile phone();
};

}  // namespace orvanta
