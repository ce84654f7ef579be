#pragma once

#include <set>
#include <string>

#include "orvanta/Platform/UIKit.h"

namespace orvanta {

/// Images that a scenario says exist, each a gray pixel, before those of the bundle.
class ScenarioImages final : public Images {
 public:
  /// `bundle` has the other images; null for none.
  ScenarioImages(std::set<std::string, std::less<>> names, Images* bundle)
      : names_(std::move(names)), bundle_(bundle) {}

  Ref<UIImage> imageNamed(std::string_view name) override;
  std::optional<std::string> JPEGRepresentation(const Ref<UIImage>& image,
                                                double compressionQuality) override;

 private:
  std::set<std::string, std::less<>> names_;
  Images* bundle_;
};

/// An image of one gray pixel.
class GrayPixel final : public UIImage {};
/// Returns the bytes of its JPEG file.
std::string grayPixelJPEG();

}  // namespace orvanta
