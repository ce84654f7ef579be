#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "orvanta/Platform/NSFileManager.h"

namespace orvanta {

/// The files of a simulated device, as far as a notification touches them: a folder for downloads,
/// the caches folder, and whatever else its file manager moves. For one thread.
///
/// Requirements for implementers: nothing outside these folders is written. Names of new downloads
/// have the platform's form, "CFNetworkDownload_000001.tmp", and are the same in every run. A call
/// that the machine does not allow throws std::runtime_error, which ends the run.
class DeviceFiles : public NSFileManager {
 public:
  /// Makes a file of zeros where downloads go, under a new name that neither that folder nor the
  /// caches have, or under the name given. Returns nothing when that name is taken.
  virtual std::optional<Url> makeDownload(const std::optional<std::string>& name,
                                          std::uint64_t size) = 0;
  /// Makes an empty file in the caches folder, unless one of the name is there.
  virtual void makeCacheFile(const std::string& name) = 0;
  /// Removes a file, if it is there.
  virtual void remove(const Url& file) = 0;
  /// Returns the size in bytes of a regular file that may be read, nothing for anything else.
  virtual std::optional<std::uint64_t> size(const Url& file) = 0;
  /// Returns the URL that a file of this name beside the two folders has.
  virtual Url url(const std::string& name) const = 0;
};

/// Keeps names and sizes in memory; the files have no contents.
class InMemoryDeviceFiles final : public DeviceFiles {
 public:
  std::optional<Url> makeDownload(const std::optional<std::string>& name,
                                  std::uint64_t size) override;
  void makeCacheFile(const std::string& name) override;
  void remove(const Url& file) override;
  std::optional<std::uint64_t> size(const Url& file) override;
  Url url(const std::string& name) const override;

  std::vector<Url> URLsForCachesDirectory() override;
  Ref<NSError> moveItemAtURL(const Url& source, const Url& destination) override;

 private:
  std::map<std::string, std::uint64_t> sizes_;  // by path
};

/// Returns the `number`th name of a download in the platform's form.
std::string downloadName(unsigned number);

}  // namespace orvanta
