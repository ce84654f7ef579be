#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Foundation/Object.h"

namespace orvanta {

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
