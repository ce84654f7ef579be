#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "orvanta/Foundation/Object.h"

// The device, its screen and the bundle's pictures. Facts of the device are read afresh on every
// call, on the caller's thread. A call may throw an orvanta::Exception, which reaches whoever asked
// for the fact.

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

/// A decoded picture; only the port that made it looks inside.
class UIImage : public Object {
 public:
  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }

 private:
  static constexpr ClassObject kClass{"UIImage", nullptr};
};

/// Pictures of the running bundle. A platform may do without.
class Images {
 public:
  virtual ~Images() = default;
  /// imageNamed: the picture of that name in the bundle's resources, nil when there is none. A name
  /// without extension means a PNG file; "@3x" and "@2x" variants come first.
  virtual Ref<UIImage> imageNamed(std::string_view name) = 0;
  /// UIImageJPEGRepresentation: the bytes of a JPEG file, from quality 0.0 to 1.0; none for nil or
  /// a picture that cannot be encoded.
  virtual std::optional<std::string> JPEGRepresentation(const Ref<UIImage>& image,
                                                        double compressionQuality) = 0;
};

}  // namespace orvanta
