#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "orvanta/Model/Device/OrvantaAppAllDeviceInfo.h"
#include "orvanta/Platform/CoreTelephony.h"

namespace orvanta {

/// Facts about the device and the application, each read afresh from the platform on every call. A
/// fact that the platform does not know is nil, or what its method tells. An Exception that a
/// service throws passes, but for connectionType.
class OrvantaAppDeviceInfoUtil {
 public:
  OrvantaAppDeviceInfoUtil() = delete;

  // ---- Application ----

  /// Of the main bundle; empty when there is none.
  static Dictionary infoDictionary();
  /// These two of the information dictionary, whatever their kind.
  static Held<String> applicationVersion();
  static Held<String> appBuild();
  /// The first of the main bundle's preferred localizations.
  static Held<String> locale();

  // ---- System and hardware ----

  static Held<String> operatingSystemVersion();
  static std::string_view operatingSystemName() { return "iOS"; }
  static std::string_view manufacturer() { return "Apple"; }
  /// "iPhone15,2", of uname.
  static Held<String> deviceModel();
  /// The same of "hw.machine".
  static Held<String> device();
  /// "arm64", "armv7s" or "armv7"; nil for a processor of another kind.
  static Held<String> architecture();
  /// Pixels, width first: "1170x2532", with six significant digits.
  static Held<String> resolution();
  /// Whole pixels per point: "@3x".
  static Held<String> density();
  // NOLINTNEXTLINE(readability-identifier-naming): named as the property
  static std::string_view OpenGLESversion() { return ""; }
  /// Percent. Switches battery monitoring on, and leaves it on. 100 when the level is unknown.
  static std::int32_t batteryLevel();
  /// "Portrait", "FaceUp", …; "Unknown" for a value that has no name.
  static std::string_view orientation();
  /// Whether there is a shell to open; nothing acts on it.
  static bool isJailbroken();

  // ---- Memory and disk, in whole MiB by way of a 32-bit float ----

  /// All ones when it cannot be read.
  static std::uint64_t freeRAM();
  /// These three are 0 then. The disk is the file system of the home directory.
  static std::uint64_t totalRAM();
  static std::uint64_t freeDisk();
  static std::uint64_t totalDisk();

  // ---- Network ----

  /// One of the SIMs' carriers from iOS 12.0 on, the SIM's before; nil without one.
  static Ref<CTCarrier> getCarrier();
  /// The same carrier, in spite of the name.
  static Ref<CTCarrier> currentServiceTechnology() { return getCarrier(); }
  static Held<String> carrierName();
  /// 0 no interface in use that counts; 1 Wi-Fi; cellular: 2 by an unknown technology, 3 GPRS, EDGE
  /// or CDMA 1x, 4 third generation, 5 LTE. An Exception ends the search with an error line in the
  /// log, and the result so far counts.
  static std::int32_t connectionType();

  // ---- All together ----

  static Ref<OrvantaAppDeviceInfo> currentAppDeviceInfo();
  /// Leaves the user agent out.
  static Ref<OrvantaAppAllDeviceInfo> allDeviceInfo();
};

}  // namespace orvanta
