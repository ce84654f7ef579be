#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "orvanta/Linux/FileDescriptor.h"

namespace orvanta {

/// The folder of a simulated device: the one named, which stays, or a new temporary one, which is
/// removed with this object. A named folder is locked, so that runs on it take turns. Throws
/// std::runtime_error for a folder that cannot be used.
class StateFolder {
 public:
  /// An empty name means a temporary folder.
  explicit StateFolder(const std::string& name);
  StateFolder(const StateFolder&) = delete;
  StateFolder& operator=(const StateFolder&) = delete;
  ~StateFolder();

  const std::filesystem::path& path() const { return path_; }
  /// Returns the string with paths and file URLs of the folder as "state/…", so that reports of
  /// different runs compare equal.
  std::string rewritePaths(std::string_view string) const;

 private:
  bool isTemporary_;
  FileDescriptor lock_;
  std::filesystem::path path_;
};

}  // namespace orvanta
