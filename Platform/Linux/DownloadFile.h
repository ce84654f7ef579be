#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "orvanta/Linux/FileDescriptor.h"

namespace orvanta {

/// A new temporary file, named as the platform names its downloads: "CFNetworkDownload_", six
/// letters or digits, ".tmp". Removed with this object unless it was finished.
class DownloadFile {
 public:
  explicit DownloadFile(std::filesystem::path folder) : folder_(std::move(folder)) {}
  DownloadFile(const DownloadFile&) = delete;
  DownloadFile& operator=(const DownloadFile&) = delete;
  ~DownloadFile();

  // These return false on an error of the file system.
  bool create();
  bool write(std::string_view bytes) const { return file_.write(bytes); }
  bool close() { return file_.close(); }

  /// Returns the path; the file is the caller's from now on.
  std::filesystem::path finish() { return std::exchange(path_, {}); }

 private:
  std::filesystem::path folder_;
  std::string path_;
  FileDescriptor file_;
};

}  // namespace orvanta
