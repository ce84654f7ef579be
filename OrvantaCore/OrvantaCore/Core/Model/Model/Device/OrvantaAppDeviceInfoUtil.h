#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "orvanta/Model/Device/OrvantaAppAllDeviceInfo.h"
#include "orvanta/Platform/CoreTelephony.h"

namespace orvanta {

/// Facts about the device and the application. Each call reads the current value from the platform.
/// A fact that the platform does not report is nil, unless its method says otherwise. An Exception
/// of a platform service reaches the caller, except from connectionType.
class OrvantaAppDeviceInfoUtil {
 public:
  OrvantaAppDeviceInfoUtil() = delete;

  // ---- Application ----

  /// Info.plist of the main bundle; empty if there is none.
  static Dictionary infoDictionary();
  /// "CFBundleShortVersionString" and "CFBundleVersion", also if they are not strings.
  static PropertyValue<String> applicationVersion();
  static PropertyValue<String> appBuild();
  /// The first of the main bundle's preferred localizations.
  static PropertyValue<String> locale();

  // ---- System and hardware ----

  static PropertyValue<String> operatingSystemVersion();
  static std::string_view operatingSystemName() { return "iOS"; }
  static std::string_view manufacturer() { return "Apple"; }
  /// "iPhone15,2", from uname.
  static PropertyValue<String> deviceModel();
  /// The same, from sysctl "hw.machine".
  static PropertyValue<String> device();
  /// "arm64", "armv7s" or "armv7"; nil for other processors.
  static PropertyValue<String> architecture();
  /// In pixels, width first: "1170x2532", each with up to six significant digits.
  static PropertyValue<String> resolution();
  /// Pixels per point, truncated to an integer: "@3x".
  static PropertyValue<String> density();
  // NOLINTNEXTLINE(readability-identifier-naming): named as the property
  static std::string_view OpenGLESversion() { return ""; }
  /// Percent; 100 if the level is unknown. Enables battery monitoring and leaves it enabled.
  static std::int32_t batteryLevel();
  /// "Portrait", "FaceUp", …; "Unknown" for any other value.
  static std::string_view orientation();
  /// Whether "/bin/bash" can be opened. The library does not act on it.
  static bool isJailbroken();

  // ---- Memory and disk, in MiB, computed as 32-bit float and truncated ----

  /// 2^64 - 1 if it cannot be read.
  static std::uint64_t freeRAM();
  /// 0 if it cannot be read, like the next two. The disk is the home directory's file system.
  static std::uint64_t totalRAM();
  static std::uint64_t freeDisk();
  static std::uint64_t totalDisk();

  // ---- Network ----

  /// The carrier of the SIM; of the first SIM the platform lists on iOS 12.0 and later. Nil without
  /// a SIM.
  static Ref<CTCarrier> getCarrier();
  /// The same carrier, in spite of the name.
  static Ref<CTCarrier> currentServiceTechnology() { return getCarrier(); }
  static PropertyValue<String> carrierName();
  /// 0 not connected; 1 Wi-Fi ("en0" has an IPv4 address); cellular ("pdp_ip0" has one): 2 unknown
  /// technology, 3 GPRS, EDGE or CDMA 1x, 4 third generation, 5 LTE. An Exception
  /// of a platform service is logged as an error; the type determined so far is returned.
  static std::int32_t connectionType();

  // ---- All together ----

  static Ref<OrvantaAppDeviceInfo> currentAppDeviceInfo();
  /// Sets everything but the user agent.
  static Ref<OrvantaAppAllDeviceInfo> allDeviceInfo();
};

}  // namespace orvanta
