#include "orvanta/Model/Device/OrvantaAppDeviceInfoUtil.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/RealText.h"
#include "orvanta/Model/Mapping/OrvantaLogger.h"
#include "orvanta/Platform/NSBundle.h"
#include "orvanta/Platform/NSFileManager.h"
#include "orvanta/Platform/NSProcessInfo.h"
#include "orvanta/Platform/Platform.h"
#include "orvanta/Platform/SystemCalls.h"
#include "orvanta/Platform/UIKit.h"

namespace orvanta {

namespace {

constexpr LogSite kConnectionType{"+[OrvantaAppDeviceInfoUtil connectionType]",
                                  "OrvantaAppDeviceInfoUtil", 0};

constexpr std::int32_t kARM = 12;
constexpr std::int32_t kARM64 = 16777228;

constexpr int kIPv4 = 2;
constexpr std::int32_t kNotConnected = 0;
constexpr std::int32_t kWiFi = 1;
constexpr std::int32_t kCellular = 2;

struct RadioTechnology {
  std::string_view name;  // without the prefix "CTRadioAccessTechnology"
  std::int32_t connectionType;
};
constexpr RadioTechnology kRadioTechnologies[] = {
    {"GPRS", 3},         {"Edge", 3},  {"CDMA1x", 3},       {"WCDMA", 4},
    {"HSDPA", 4},        {"HSUPA", 4}, {"CDMAEVDORev0", 4}, {"CDMAEVDORevA", 4},
    {"CDMAEVDORevB", 4}, {"eHRPD", 4}, {"LTE", 5},
};

std::int32_t connectionTypeFor(std::string_view technology) {
  constexpr std::string_view kPrefix = "CTRadioAccessTechnology";
  if (!technology.starts_with(kPrefix)) return kCellular;
  technology.remove_prefix(kPrefix.size());
  for (const RadioTechnology& known : kRadioTechnologies) {
    if (known.name == technology) return known.connectionType;
  }
  return kCellular;
}

PropertyValue<String> stringOrNil(const std::optional<std::string>& string) {
  return string ? PropertyValue<String>(*string) : nullptr;
}

std::uint64_t mebibytes(std::uint64_t bytes) {
  // The largest result, 2^44, is in range.
  return static_cast<std::uint64_t>(static_cast<float>(bytes) * 0x1p-20F);
}

/// Truncates and clamps to 32 bits; returns 0 for NaN.
std::int32_t truncated(double number) {
  constexpr double kMax = std::numeric_limits<std::int32_t>::max();
  return std::isnan(number) ? 0 : static_cast<std::int32_t>(std::clamp(number, -kMax, kMax));
}

FileSystems::Attributes homeFileSystem() {
  FileSystems* const systems = Platform::current().fileSystems();
  if (systems == nullptr) return {};
  return systems->attributesOfFileSystemForPath(systems->NSHomeDirectory());
}

std::optional<std::string> systemValue(std::string_view name) {
  SystemCalls* const calls = Platform::current().systemCalls();
  return calls != nullptr ? calls->sysctlbyname(name) : std::nullopt;
}

std::optional<std::string> machineName() {
  std::optional<std::string> name = systemValue("hw.machine");
  if (name) name->resize(std::min(name->find('\0'), name->size()));
  return name;
}

std::optional<std::int32_t> processorType() {
  const std::optional<std::string> bytes = systemValue("hw.cputype");
  std::int32_t type = 0;
  if (!bytes || bytes->size() != sizeof type) return std::nullopt;
  std::memcpy(&type, bytes->data(), sizeof type);
  return type;
}

/// Returns the architecture of a 32-bit ARM device. Only the last digit of the minor number counts.
std::string_view architectureOfARM(std::string_view machine) {
  const char last = machine.empty() ? '0' : machine.back();
  const bool isSwift = (machine.starts_with("iPhone5,") && last >= '1' && last <= '4') ||
                       (machine.starts_with("iPad3,") && last >= '4' && last <= '6');
  return isSwift ? "armv7s" : "armv7";
}

}  // namespace

Dictionary OrvantaAppDeviceInfoUtil::infoDictionary() {
  NSBundle* const bundle = Platform::current().mainBundle();
  return bundle != nullptr ? bundle->infoDictionary() : Dictionary();
}

PropertyValue<String> OrvantaAppDeviceInfoUtil::applicationVersion() {
  return PropertyValue<String>::any(infoDictionary()["CFBundleShortVersionString"]);
}

PropertyValue<String> OrvantaAppDeviceInfoUtil::appBuild() {
  return PropertyValue<String>::any(infoDictionary()["CFBundleVersion"]);
}

PropertyValue<String> OrvantaAppDeviceInfoUtil::locale() {
  NSBundle* const bundle = Platform::current().mainBundle();
  if (bundle == nullptr) return nullptr;
  const std::vector<std::string> preferred = bundle->preferredLocalizations();
  return preferred.empty() ? nullptr : PropertyValue<String>(preferred.front());
}

PropertyValue<String> OrvantaAppDeviceInfoUtil::operatingSystemVersion() {
  UIDevice* const device = Platform::current().currentDevice();
  return device != nullptr ? PropertyValue<String>(device->systemVersion()) : nullptr;
}

PropertyValue<String> OrvantaAppDeviceInfoUtil::deviceModel() {
  SystemCalls* const calls = Platform::current().systemCalls();
  return calls != nullptr ? stringOrNil(calls->uname()) : nullptr;
}

PropertyValue<String> OrvantaAppDeviceInfoUtil::device() { return stringOrNil(machineName()); }

PropertyValue<String> OrvantaAppDeviceInfoUtil::architecture() {
  const std::optional<std::int32_t> type = processorType();
  if (type == kARM64) return "arm64";
  if (type == kARM) return architectureOfARM(machineName().value_or(""));
  return nullptr;
}

PropertyValue<String> OrvantaAppDeviceInfoUtil::resolution() {
  UIScreen* const screen = Platform::current().mainScreen();
  if (screen == nullptr) return nullptr;
  constexpr int kPixelDigits = 6;
  const CGSize points = screen->boundsSize();
  const double scale = screen->scale();
  return realWithDigits(points.width * scale, kPixelDigits) + "x" +
         realWithDigits(points.height * scale, kPixelDigits);
}

PropertyValue<String> OrvantaAppDeviceInfoUtil::density() {
  UIScreen* const screen = Platform::current().mainScreen();
  if (screen == nullptr) return nullptr;
  return "@" + std::to_string(truncated(screen->scale())) + "x";
}

std::int32_t OrvantaAppDeviceInfoUtil::batteryLevel() {
  float level = -1.0F;
  if (UIDevice* const device = Platform::current().currentDevice()) {
    device->setBatteryMonitoringEnabled(true);
    level = device->batteryLevel();
  }
  return std::abs(truncated(level * 100.0F));
}

std::string_view OrvantaAppDeviceInfoUtil::orientation() {
  constexpr std::string_view kNames[] = {"Unknown",       "Portrait",       "PortraitUpsideDown",
                                         "LandscapeLeft", "LandscapeRight", "FaceUp",
                                         "FaceDown"};
  UIDevice* const device = Platform::current().currentDevice();
  const std::int64_t value = device != nullptr ? device->orientation() : 0;
  const bool isNamed = value >= 0 && value < std::ssize(kNames);
  return kNames[isNamed ? value : 0];
}

bool OrvantaAppDeviceInfoUtil::isJailbroken() {
  SystemCalls* const calls = Platform::current().systemCalls();
  return calls != nullptr && calls->fopen("/bin/bash");
}

std::uint64_t OrvantaAppDeviceInfoUtil::freeRAM() {
  SystemCalls* const calls = Platform::current().systemCalls();
  const auto statistics = calls != nullptr ? calls->hostStatistics() : std::nullopt;
  if (!statistics) return std::numeric_limits<std::uint64_t>::max();
  return mebibytes(statistics->freeCount * statistics->pageSize);
}

std::uint64_t OrvantaAppDeviceInfoUtil::totalRAM() {
  NSProcessInfo* const process = Platform::current().processInfo();
  return process != nullptr ? mebibytes(process->physicalMemory()) : 0;
}

std::uint64_t OrvantaAppDeviceInfoUtil::freeDisk() {
  return mebibytes(homeFileSystem().systemFreeSize.value_or(0));
}

std::uint64_t OrvantaAppDeviceInfoUtil::totalDisk() {
  return mebibytes(homeFileSystem().systemSize.value_or(0));
}

Ref<CTCarrier> OrvantaAppDeviceInfoUtil::getCarrier() {
  Platform& platform = Platform::current();
  CTTelephonyNetworkInfo* const network = platform.telephonyNetworkInfo();
  if (network == nullptr) return nullptr;
  if (platform.operatingSystemVersion() < OperatingSystemVersion{12, 0, 0}) {
    return network->subscriberCellularProvider();
  }
  const auto carriers = network->serviceSubscriberCellularProviders();
  return carriers.empty() ? nullptr : carriers.front();
}

PropertyValue<String> OrvantaAppDeviceInfoUtil::carrierName() {
  const Ref<CTCarrier> carrier = getCarrier();
  return carrier ? stringOrNil(carrier->carrierName()) : nullptr;
}

std::int32_t OrvantaAppDeviceInfoUtil::connectionType() {
  std::int32_t type = kNotConnected;
  try {
    Platform& platform = Platform::current();
    SystemCalls* const calls = platform.systemCalls();
    if (calls == nullptr) return type;
    for (const SystemCalls::InterfaceAddress& address : calls->getifaddrs()) {
      if (address.family != kIPv4) continue;
      if (address.name == "en0") return kWiFi;
      if (address.name == "pdp_ip0") {
        type = kCellular;
        CTTelephonyNetworkInfo* const network = platform.telephonyNetworkInfo();
        if (network == nullptr) continue;
        type = connectionTypeFor(network->currentRadioAccessTechnology().value_or(""));
      }
    }
  } catch (const Exception& exception) {
    logError(kConnectionType, [&] {
      return formatted("Connection type can not be retrieved: \n%@", {exception.reason()});
    });
  }
  return type;
}

Ref<OrvantaAppDeviceInfo> OrvantaAppDeviceInfoUtil::currentAppDeviceInfo() {
  auto info = make<OrvantaAppDeviceInfo>();
  info->setOSVersion(operatingSystemVersion());
  info->setAppVersion(applicationVersion());
  info->setCarrierName(carrierName());
  info->setLocale(locale());
  info->setManufacturer(manufacturer());
  info->setDeviceModel(deviceModel());
  return info;
}

Ref<OrvantaAppAllDeviceInfo> OrvantaAppDeviceInfoUtil::allDeviceInfo() {
  auto info = make<OrvantaAppAllDeviceInfo>();
  const Ref<OrvantaAppDeviceInfo> current = currentAppDeviceInfo();
  info->setOSVersion(current->OSVersion());
  info->setAppVersion(current->appVersion());
  info->setCarrierName(current->carrierName());
  info->setLocale(current->locale());
  info->setManufacturer(current->manufacturer());
  info->setDeviceModel(current->deviceModel());

  info->setOSName(operatingSystemName());
  info->setDensity(density());
  info->setResolution(resolution());
  info->setLocale(locale());
  info->setArchitecture(architecture());
  info->setCarrierName(carrierName());
  info->setConnectionType(connectionType());
  info->setTotalDisk(static_cast<float>(totalDisk()));
  info->setTotalRAM(static_cast<float>(totalRAM()));
  info->setBatteryLevel(batteryLevel());
  info->setDevice(device());
  info->setOpenGLESversion(OpenGLESversion());
  return info;
}

}  // namespace orvanta
