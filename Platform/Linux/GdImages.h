#pragma once

#include <filesystem>
#include <string>
#include <utility>

#include "orvanta/Platform/UIKit.h"

namespace orvanta {

/// Images of a resources folder: PNG, JPEG, GIF (its first frame) and WebP, decoded by libpng and
/// libgd and encoded by libgd. As on the platform, a name without extension is that of a PNG file,
/// and the variants "@3x" and "@2x" come first.
///
/// Names and files may be hostile. Only plain names are looked up, and links that leave the folder
/// are not followed. Files over 32 MiB and images over 4096 pixels in width or height do not exist
/// for callers, nor do damaged ones. Throws std::runtime_error if there is an image to decode and
/// libgd is not installed.
class GdImages final : public Images {
 public:
  /// An empty path is a folder without images.
  explicit GdImages(std::filesystem::path resources) : resources_(std::move(resources)) {}

  Ref<UIImage> imageNamed(std::string_view name) override;
  std::optional<std::string> JPEGRepresentation(const Ref<UIImage>& image,
                                                double compressionQuality) override;

 private:
  std::filesystem::path resources_;
};

}  // namespace orvanta
