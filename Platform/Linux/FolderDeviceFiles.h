#pragma once

#include <filesystem>

#include "orvanta/Linux/PosixFileManager.h"
#include "orvanta/Simulator/DeviceFiles.h"

namespace orvanta {

/// A simulated device's files in a folder: "tmp/" for downloads and "Caches/". Nothing is
/// overwritten and no link is followed. Throws std::filesystem::filesystem_error where a file
/// cannot be made.
class FolderDeviceFiles final : public DeviceFiles {
 public:
  /// The folder must exist; the two folders in it are made.
  explicit FolderDeviceFiles(const std::filesystem::path& folder);

  std::optional<Url> makeDownload(const std::optional<std::string>& name,
                                  std::uint64_t size) override;
  void makeCacheFile(const std::string& name) override;
  void remove(const Url& file) override;
  std::optional<std::uint64_t> size(const Url& file) override;
  Url url(const std::string& name) const override;

  std::vector<Url> URLsForCachesDirectory() override { return files_.URLsForCachesDirectory(); }
  Ref<NSError> moveItemAtURL(const Url& source, const Url& destination) override {
    return files_.moveItemAtURL(source, destination);
  }

  const std::filesystem::path& downloads() const { return downloads_; }
  /// Returns a new download file, empty, or with `contents` moved there.
  std::filesystem::path newDownload(const std::filesystem::path& contents = {}) const;

 private:
  std::filesystem::path folder_;
  std::filesystem::path downloads_;
  std::filesystem::path caches_;
  PosixFileManager files_;
};

}  // namespace orvanta
