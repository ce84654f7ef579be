#pragma once

#include "orvanta/Model/Device/OrvantaAppDeviceInfo.h"

namespace orvanta {

/// The full description. The locale goes over the wire twice, as "lang" and as "lo".
class OrvantaAppAllDeviceInfo : public OrvantaAppDeviceInfo {
  ORVANTA_MODEL(OrvantaAppAllDeviceInfo, OrvantaAppDeviceInfo)

  ORVANTA_PROPERTY("osn", copy, String, OSName, setOSName)
  ORVANTA_PROPERTY(kUnmapped, copy, String, device, setDevice)
  ORVANTA_PROPERTY("arc", copy, String, architecture, setArchitecture)
  /// Pixels: "1170x2532".
  ORVANTA_PROPERTY("res", copy, String, resolution, setResolution)
  /// Pixels per point: "@3x".
  ORVANTA_PROPERTY("den", copy, String, density, setDensity)
  ORVANTA_FURTHER_KEY("lo", locale)
  /// A code from 0 to 5, see OrvantaAppDeviceInfoUtil.
  ORVANTA_PROPERTY("ct", assign, std::int32_t, connectionType, setConnectionType)
  /// MiB.
  ORVANTA_PROPERTY("td", assign, float, totalDisk, setTotalDisk)
  /// MiB.
  ORVANTA_PROPERTY("tr", assign, float, totalRAM, setTotalRAM)
  /// Percent.
  ORVANTA_PROPERTY("bl", assign, std::int32_t, batteryLevel, setBatteryLevel)
  /// Set by whoever has one; never collected.
  ORVANTA_PROPERTY("ua", copy, String, userAgent, setUserAgent)
  ORVANTA_PROPERTY("ogv", copy, String, OpenGLESversion, setOpenGLESversion)
};

}  // namespace orvanta
