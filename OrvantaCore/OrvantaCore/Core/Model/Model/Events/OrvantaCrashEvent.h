#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The application crashed, or caught an exception and went on: a snapshot of device and
/// application. The crash reporter sets the properties and defines their units.
class OrvantaCrashEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaCrashEvent, OrvantaEvent, "o:cr")

  ORVANTA_PROPERTY("ff", assign, std::int32_t, batteryLevel, setBatteryLevel)
  ORVANTA_PROPERTY("fg", assign, bool, isRooted, setIsRooted)
  ORVANTA_PROPERTY("fh", assign, bool, isOnline, setIsOnline)
  ORVANTA_PROPERTY("fi", strong, Date, time, setTime)
  ORVANTA_PROPERTY("data", copy, String, binaryImages, setBinaryImages)
  ORVANTA_PROPERTY("fk", copy, String, appBuild, setAppBuild)
  ORVANTA_PROPERTY("fl", copy, String, buildUuid, setBuildUuid)
  ORVANTA_PROPERTY("fm", assign, std::int32_t, nonFatal, setNonFatal)
  ORVANTA_PROPERTY("cmp", copy, String, logs, setLogs)
  ORVANTA_PROPERTY("fo", copy, String, resolution, setResolution)
  ORVANTA_PROPERTY("fp", copy, String, architecture, setArchitecture)
  ORVANTA_PROPERTY("fs", copy, String, openGlVersion, setOpenGlVersion)
  ORVANTA_PROPERTY("fx", copy, String, name, setName)
  ORVANTA_PROPERTY("ga", copy, String, executableName, setExecutableName)
  ORVANTA_PROPERTY("ea", copy, String, appVersion, setAppVersion)
  ORVANTA_PROPERTY("eb", copy, String, model, setModel)
  ORVANTA_PROPERTY("ec", assign, std::int32_t, currentRam, setCurrentRam)
  ORVANTA_PROPERTY("ed", assign, std::int32_t, totalRam, setTotalRam)
  ORVANTA_PROPERTY("ef", copy, String, osVersion, setOsVersion)
  ORVANTA_PROPERTY("eg", copy, String, orientation, setOrientation)
  ORVANTA_PROPERTY("eh", copy, String, manufacturer, setManufacturer)
  ORVANTA_PROPERTY("eo", assign, std::int32_t, currentDisk, setCurrentDisk)
  ORVANTA_PROPERTY("et", copy, String, stackTrace, setStackTrace)
  ORVANTA_PROPERTY("eu", copy, String, operatingSystem, setOperatingSystem)
  ORVANTA_PROPERTY("ev", copy, String, type, setType)
  ORVANTA_PROPERTY("txt", copy, String, custom, setCustom)
  ORVANTA_PROPERTY("fe", assign, std::int32_t, totalDisk, setTotalDisk)
  /// Not sent.
  ORVANTA_PROPERTY(kUnmapped, strong, String, crashInfo, setCrashInfo)
};

}  // namespace orvanta
