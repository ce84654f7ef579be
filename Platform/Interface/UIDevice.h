#pragma once

#include <cstdint>
#include <string>

// The device and its screen. Everything is read afresh on every call, on the caller's thread. A
// call may throw an orvanta::Exception, which reaches whoever asked for the fact.

namespace orvanta {

/// The current device.
class UIDevice {
 public:
  virtual ~UIDevice() = default;
  /// "17.0"; UTF-8.
  virtual std::string systemVersion() = 0;
  /// Stays as it was set last.
  virtual void setBatteryMonitoringEnabled(bool enabled) = 0;
  /// 0.0 to 1.0; -1.0 when it is unknown, and as long as monitoring is off.
  virtual float batteryLevel() = 0;
  /// 0 unknown, 1 portrait, 2 upside down, 3 landscape left, 4 landscape right, 5 face up, 6 face
  /// down.
  virtual std::int64_t orientation() = 0;
};

struct CGSize {
  double width = 0.0;
  double height = 0.0;
};

/// The main screen.
class UIScreen {
 public:
  virtual ~UIScreen() = default;
  /// The size of the screen's bounds, in points.
  virtual CGSize boundsSize() = 0;
  /// Pixels per point.
  virtual double scale() = 0;
};

}  // namespace orvanta
