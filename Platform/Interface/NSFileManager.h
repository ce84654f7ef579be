#pragma once

#include <vector>

#include "Foundation/Url.h"
#include "Platform/Interface/NSError.h"

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

}  // namespace orvanta
