#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "orvanta/Foundation/Url.h"
#include "orvanta/Platform/NSError.h"

namespace orvanta {

/// Files and folders.
class NSFileManager {
 public:
  virtual ~NSFileManager() = default;

  /// The caches folder in the user's domain, as file URLs that end in a slash; never empty.
  virtual std::vector<Url> URLsForCachesDirectory() = 0;
  /// Moves a file; across file systems it is copied and then removed. Never overwrites: an existing
  /// destination is NSCocoaErrorDomain 516, a missing source 4, a folder without permission 513,
  /// each with the POSIX error underneath. Nil for success.
  virtual Ref<NSError> moveItemAtURL(const Url& source, const Url& destination) = 0;
};

/// The part of the file manager that knows the file systems. Everything is read afresh on every
/// call, from any thread. The return value says that a call failed; it may also throw an
/// orvanta::Exception.
class FileSystems {
 public:
  /// Bytes; what cannot be read is missing.
  struct Attributes {
    std::optional<std::uint64_t> systemSize;      // NSFileSystemSize
    std::optional<std::uint64_t> systemFreeSize;  // NSFileSystemFreeSize
  };

  virtual ~FileSystems() = default;
  virtual std::string NSHomeDirectory() = 0;
  /// attributesOfFileSystemForPath:error: of the file system that a path lies on.
  virtual Attributes attributesOfFileSystemForPath(const std::string& path) = 0;
};

}  // namespace orvanta
