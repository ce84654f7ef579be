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

/// Facts about a simulated device. A host may fill in what is not set from its own machine; what is
/// still not set is unknown to the component.
struct DeviceProfile {
  struct Screen {
    CGSize points;
    double scale = 1.0;
  };

  std::string systemVersion = "17.0";
  OperatingSystemVersion version{17, 0, 0};  // systemVersion as numbers
  std::optional<std::string> machine;        // uname
  std::optional<std::string> hwMachine;      // sysctlbyname; not set: the machine
  std::optional<std::int32_t> cpuType;
  std::optional<Screen> screen;
  std::optional<float> battery;  // 0.0 to 1.0, or -1.0
  std::int64_t orientation = 0;
  std::vector<std::string> carriers;
  std::optional<std::string> radio;
  std::optional<std::vector<SystemCalls::InterfaceAddress>> interfaces;
  std::optional<std::uint64_t> physicalMemory;             // bytes, as the next three
  std::optional<std::optional<std::uint64_t>> freeMemory;  // set to nothing: reading fails
  std::optional<std::uint64_t> diskSize;
  std::optional<std::uint64_t> diskFree;
  std::optional<std::optional<std::string>> locale;  // set to nothing: none
  Dictionary bundle;                                 // the information dictionary
  std::optional<bool> bash;

  /// Throws ConfigError.
  static DeviceProfile fromDictionary(const Dictionary& dictionary);
  /// A current phone; every fact is set.
  static DeviceProfile phone();
};

}  // namespace orvanta
