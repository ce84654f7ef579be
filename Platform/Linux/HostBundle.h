#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "orvanta/Platform/NSBundle.h"

namespace orvanta {

/// The bundle whose resources lie in a folder; its texts are those of "Localizable.strings" there
/// (`"key" = "value";` with C escapes, /* */ and // comments, UTF-8), if there is one.
class HostBundle final : public NSBundle {
 public:
  /// Throws std::runtime_error that names file and line for a strings file that cannot be read.
  explicit HostBundle(const std::filesystem::path& resources);

  std::string localizedStringForKey(std::string_view key) override;

 private:
  std::map<std::string, std::string, std::less<>> texts_;
};

}  // namespace orvanta
