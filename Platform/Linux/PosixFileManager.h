#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "orvanta/Platform/NSFileManager.h"

namespace orvanta {

/// Moves a file, over nothing that is there: 0, or an errno.
int moveFile(const std::string& source, const std::string& destination);

/// A file manager whose caches folder is the one given.
class PosixFileManager final : public NSFileManager {
 public:
  /// Makes the folder when it is missing; throws std::filesystem::filesystem_error.
  explicit PosixFileManager(const std::filesystem::path& cachesFolder);

  std::vector<Url> URLsForCachesDirectory() override;
  Ref<NSError> moveItemAtURL(const Url& source, const Url& destination) override;

 private:
  std::filesystem::path cachesFolder_;
};

}  // namespace orvanta
