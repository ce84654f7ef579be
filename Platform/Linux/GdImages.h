#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "orvanta/Platform/UIKit.h"

namespace orvanta {

/// Pictures of a resources folder, decoded and encoded by an image library. Only plain names are
/// looked up: nothing that leaves the folder. Throws std::runtime_error where there is a picture
/// and the library is not installed.
class GdImages final : public Images {
 public:
  /// An empty folder has no pictures. The simulated names exist as small plain pictures.
  explicit GdImages(std::filesystem::path resources, std::set<std::string> simulated = {});

  Ref<UIImage> imageNamed(std::string_view name) override;
  std::optional<std::string> JPEGRepresentation(const Ref<UIImage>& image,
                                                double compressionQuality) override;

 private:
  std::filesystem::path resources_;
  std::set<std::string> simulated_;
};

}  // namespace orvanta
