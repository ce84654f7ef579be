#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "orvanta/Foundation/Object.h"

// The device, its screen and the bundle's images.
//
// OrvantaAppDeviceInfoUtil calls UIDevice and UIScreen on its caller's thread; the extension's
// sender step calls Images on the thread that the step runs on.
//
// Requirements for implementers:
// - UIDevice, UIScreen: read the current state on every call. An orvanta::Exception may be thrown;
//   it reaches the caller of OrvantaAppDeviceInfoUtil.
// - Images: work synchronously, from any thread. Do not throw.

namespace orvanta {

/// The current device.
class UIDevice {
 public:
  virtual ~UIDevice() = default;
  /// "17.0"; UTF-8.
  virtual std::string systemVersion() = 0;
  /// Monitoring is off at first. Called with true before each reading of the level, and never with
  /// false.
  virtual void setBatteryMonitoringEnabled(bool enabled) = 0;
  /// 0.0 to 1.0; -1.0 if unknown, or while monitoring is off.
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
  /// `bounds.size`, in points.
  virtual CGSize boundsSize() = 0;
  /// Pixels per point.
  virtual double scale() = 0;
};

/// A decoded image. Derive a class that holds the platform's image: only `Images` of the same port
/// reads it.
class UIImage : public Object {
 public:
  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }

 private:
  static constexpr ClassObject kClass{"UIImage", nullptr};
};

/// Images of the main bundle: the sender's image of a communication notification.
///
/// The extension calls `imageNamed` with the name in the payload, then `JPEGRepresentation` with
/// quality 1.0.
class Images {
 public:
  virtual ~Images() = default;
  /// imageNamed: returns the image in the bundle's resources, nil if there is none or it cannot be
  /// decoded. A name without extension means a PNG file. Prefers the "@3x", then the "@2x" variant.
  /// Names are case-sensitive; the payload may contain any string.
  virtual Ref<UIImage> imageNamed(std::string_view name) = 0;
  /// UIImageJPEGRepresentation: returns the bytes of a JPEG file of quality 0.0 to 1.0 (best).
  /// Returns nullopt for nil, an image of another port, or one that cannot be encoded.
  virtual std::optional<std::string> JPEGRepresentation(const Ref<UIImage>& image,
                                                        double compressionQuality) = 0;
};

}  // namespace orvanta
