#include "orvanta/Linux/FolderDeviceFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <system_error>

#include "orvanta/Linux/FileDescriptor.h"

namespace orvanta {

namespace fs = std::filesystem;

/// Makes a new empty file. Returns 0 or an errno, which is EEXIST also for a dangling link.
static int makeNewFile(const fs::path& file) {
  FileDescriptor descriptor(
      ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
  return descriptor.isOpen() && descriptor.close() ? 0 : errno;
}

FolderDeviceFiles::FolderDeviceFiles(const fs::path& folder)
    : folder_(folder),
      downloads_(folder / "tmp"),
      caches_(folder / "Caches"),
      files_(folder / "Caches") {
  fs::create_directories(downloads_);
}

std::optional<Url> FolderDeviceFiles::makeDownload(const std::optional<std::string>& name,
                                                   std::uint64_t size) {
  const fs::path file = name ? downloads_ / *name : newDownload();
  if (name && makeNewFile(file) != 0) return std::nullopt;
  fs::resize_file(file, size);
  return Url::fileURLWithPath(file.string());
}

fs::path FolderDeviceFiles::newDownload(const fs::path& contents) const {
  constexpr unsigned kMaxNumber = 100'000;
  for (unsigned number = 1; number <= kMaxNumber; ++number) {
    const std::string name = downloadName(number);
    if (fs::exists(fs::symlink_status(caches_ / name))) continue;
    fs::path file = downloads_ / name;
    const int error =
        contents.empty() ? makeNewFile(file) : moveFile(contents.string(), file.string());
    if (error == 0) return file;
    if (error != EEXIST) {
      throw fs::filesystem_error("no file can be made", file, {error, std::generic_category()});
    }
  }
  throw std::runtime_error(downloads_.string() + ": too many temporary files");
}

void FolderDeviceFiles::makeCacheFile(const std::string& name) { makeNewFile(caches_ / name); }

void FolderDeviceFiles::remove(const Url& file) {
  std::error_code ignored;
  fs::remove(file.path(), ignored);
}

std::optional<std::uint64_t> FolderDeviceFiles::size(const Url& file) {
  const std::string path = file.path();
  struct stat status {};
  if (!file.isFileURL() || path.find('\0') != std::string::npos ||
      ::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode) ||
      ::access(path.c_str(), R_OK) != 0) {
    return std::nullopt;
  }
  return static_cast<std::uint64_t>(status.st_size);
}

Url FolderDeviceFiles::url(const std::string& name) const {
  return Url::fileURLWithPath((folder_ / name).string());
}

}  // namespace orvanta
