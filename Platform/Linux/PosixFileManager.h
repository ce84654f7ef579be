#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "orvanta/Platform/NSFileManager.h"

namespace orvanta {

/// Moves a file, also between file systems, without ever overwriting. Returns 0 or an errno: EEXIST
/// if anything is at the destination, be it a dangling link.
int moveFile(const std::string& source, const std::string& destination);

/// Reports failed moves as the platform does: NSCocoaErrorDomain with the POSIX error below it.
class PosixFileManager final : public NSFileManager {
 public:
  /// Creates the folder if it is missing; throws std::filesystem::filesystem_error on failure.
  explicit PosixFileManager(const std::filesystem::path& cachesFolder);

  std::vector<Url> URLsForCachesDirectory() override;
  Ref<NSError> moveItemAtURL(const Url& source, const Url& destination) override;

 private:
  std::filesystem::path cachesFolder_;
};

}  // namespace orvanta
