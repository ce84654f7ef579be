#pragma once

#include <filesystem>
#include <string_view>
#include <utility>

namespace orvanta {

/// A name of the platform's form for a download's temporary file, which the folder does not have.
std::filesystem::path temporaryDownload(const std::filesystem::path& folder);

/// A new temporary file, gone with this object unless it was finished.
class DownloadFile {
 public:
  explicit DownloadFile(std::filesystem::path folder) : folder_(std::move(folder)) {}
  DownloadFile(const DownloadFile&) = delete;
  DownloadFile& operator=(const DownloadFile&) = delete;
  ~DownloadFile();

  // Each answers false on an error of the file system.
  bool create();
  bool write(std::string_view bytes) const;
  bool close();
  /// The file's path; the file is the caller's from now on.
  std::filesystem::path finish() { return std::exchange(path_, {}); }

 private:
  std::filesystem::path folder_;
  std::filesystem::path path_;
  int descriptor_ = -1;
};

}  // namespace orvanta
