#include "orvanta/Simulator/ScenarioImages.h"

namespace orvanta {

static constexpr char kGrayPixel[] =
    "\xFF\xD8\xFF\xE0\x00\x10\x4A\x46\x49\x46\x00\x01\x01\x00\x00\x01\x00\x01\x00\x00"
    "\xFF\xDB\x00\x43\x00\x08\x06\x06\x07\x06\x05\x08\x07\x07\x07\x09\x09\x08\x0A\x0C"
    "\x14\x0D\x0C\x0B\x0B\x0C\x19\x12\x13\x0F\x14\x1D\x1A\x1F\x1E\x1D\x1A\x1C\x1C\x20"
    "\x24\x2E\x27\x20\x22\x2C\x23\x1C\x1C\x28\x37\x29\x2C\x30\x31\x34\x34\x34\x1F\x27"
    "\x39\x3D\x38\x32\x3C\x2E\x33\x34\x32\xFF\xC0\x00\x0B\x08\x00\x01\x00\x01\x01\x01"
    "\x11\x00\xFF\xC4\x00\x14\x00\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00"
    "\x00\x00\x00\x00\xFF\xC4\x00\x14\x10\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00"
    "\x00\x00\x00\x00\x00\x00\xFF\xDA\x00\x08\x01\x01\x00\x00\x3F\x00\x3F\xFF\xD9";

std::string grayPixelJPEG() { return {kGrayPixel, sizeof kGrayPixel - 1}; }

/// Whether a name can be that of a file in the resources.
static bool isPlainName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.size() <= 255 &&
         name.find_first_of(std::string_view("/\\\0", 3)) == std::string_view::npos;
}

Ref<UIImage> ScenarioImages::imageNamed(std::string_view name) {
  if (names_.contains(name) && isPlainName(name)) return Ref<GrayPixel>::adopt(new GrayPixel);
  return bundle_ != nullptr ? bundle_->imageNamed(name) : nullptr;
}

std::optional<std::string> ScenarioImages::JPEGRepresentation(const Ref<UIImage>& image,
                                                              double compressionQuality) {
  if (dynamic_cast<const GrayPixel*>(image.get()) != nullptr) return grayPixelJPEG();
  if (bundle_ == nullptr) return std::nullopt;
  return bundle_->JPEGRepresentation(image, compressionQuality);
}

}  // namespace orvanta
