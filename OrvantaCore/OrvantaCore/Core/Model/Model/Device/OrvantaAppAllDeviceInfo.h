#pragma once

#include "orvanta/Model/Device/OrvantaAppDeviceInfo.h"

namespace orvanta {

/// All facts about the device and the application. Sent in OrvantaDeviceInfoRequest. The locale is
/// sent twice, as "lang" and as "lo".
class OrvantaAppAllDeviceInfo : public OrvantaAppDeviceInfo {
  ORVANTA_MODEL(OrvantaAppAllDeviceInfo, OrvantaAppDeviceInfo)

  ORVANTA_PROPERTY("osn", copy, String, OSName, setOSName)
  ORVANTA_PROPERTY(kUnmapped, copy, String, device, setDevice)
  ORVANTA_PROPERTY("arc", copy, String, architecture, setArchitecture)
  /// In pixels, width first: "1170x2532".
  ORVANTA_PROPERTY("res", copy, String, resolution, setResolution)
  /// Pixels per point: "@3x".
  ORVANTA_PROPERTY("den", copy, String, density, setDensity)
  ORVANTA_FURTHER_KEY("lo", locale)
  /// A code from 0 to 5, see OrvantaAppDeviceInfoUtil::connectionType.
  ORVANTA_PROPERTY("ct", assign, std::int32_t, connectionType, setConnectionType)
  /// MiB.
  ORVANTA_PROPERTY("td", assign, float, totalDisk, setTotalDisk)
  /// MiB.
  ORVANTA_PROPERTY("tr", assign, float, totalRAM, setTotalRAM)
  /// Percent.
  ORVANTA_PROPERTY("bl", assign, std::int32_t, batteryLevel, setBatteryLevel)
  /// Set by the application; the library does not collect it.
  ORVANTA_PROPERTY("ua", copy, String, userAgent, setUserAgent)
  ORVANTA_PROPERTY("ogv", copy, String, OpenGLESversion, setOpenGLESversion)
};

}  // namespace orvanta
