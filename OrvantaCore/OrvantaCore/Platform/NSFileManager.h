#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "orvanta/Foundation/Url.h"
#include "orvanta/Platform/NSError.h"

namespace orvanta {

/// The files that the extension moves.
///
/// Called by the extension's media step in the download's callback: `URLsForCachesDirectory`, of
/// which the last URL counts, then `moveItemAtURL` from the session's temporary file.
///
/// Requirements for implementers:
/// - Both methods work synchronously and do not throw.
/// - Safe to call from the queues of the session, also for several downloads at a time.
class NSFileManager {
 public:
  virtual ~NSFileManager() = default;

  /// The caches folders of the user's domain: file URLs that end in a slash, at least one.
  virtual std::vector<Url> URLsForCachesDirectory() = 0;
  /// Moves a file. Across file systems, copies it and then removes the source. Never overwrites.
  /// Returns nil for success. Returns an error of NSCocoaErrorDomain with the POSIX error as
  /// NSError::kUnderlyingError for a destination that exists (516), a missing source (4), a folder
  /// without write permission (513).
  virtual Ref<NSError> moveItemAtURL(const Url& source, const Url& destination) = 0;
};

/// The size of a file system: the rest of the platform's file manager that the library uses.
///
/// Called by OrvantaAppDeviceInfoUtil on its caller's thread: the home directory, then the
/// attributes of the file system that contains it.
///
/// Requirements for implementers:
/// - Read the current state on every call. Safe from any thread.
/// - Report a failure by the return value. An orvanta::Exception may be thrown; it reaches the
///   caller of OrvantaAppDeviceInfoUtil.
class FileSystems {
 public:
  /// Bytes; nullopt for what cannot be read.
  struct Attributes {
    std::optional<std::uint64_t> systemSize;      // NSFileSystemSize
    std::optional<std::uint64_t> systemFreeSize;  // NSFileSystemFreeSize
  };

  virtual ~FileSystems() = default;
  virtual std::string NSHomeDirectory() = 0;
  /// attributesOfFileSystemForPath:error: of the file system that contains the path.
  virtual Attributes attributesOfFileSystemForPath(const std::string& path) = 0;
};

}  // namespace orvanta
