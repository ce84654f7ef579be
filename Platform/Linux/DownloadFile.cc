#include "orvanta/Linux/DownloadFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <random>
#include <string>

namespace orvanta {

std::filesystem::path temporaryDownload(const std::filesystem::path& folder) {
  constexpr std::string_view kCharacters =
      "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  std::random_device random;
  std::uniform_int_distribution<std::size_t> place(0, kCharacters.size() - 1);
  while (true) {
    std::string name = "CFNetworkDownload_";
    for (int i = 0; i < 6; ++i) name += kCharacters[place(random)];
    std::filesystem::path path = folder / (name + ".tmp");
    std::error_code error;
    if (!std::filesystem::exists(std::filesystem::symlink_status(path, error))) return path;
  }
}

DownloadFile::~DownloadFile() {
  if (descriptor_ >= 0) ::close(descriptor_);
  if (!path_.empty()) ::unlink(path_.c_str());
}

bool DownloadFile::create() {
  for (int attempt = 0; attempt < 100; ++attempt) {
    std::filesystem::path path = temporaryDownload(folder_);
    descriptor_ = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                         S_IRUSR | S_IWUSR);
    if (descriptor_ >= 0) {
      path_ = std::move(path);
      return true;
    }
    if (errno != EEXIST && errno != EINTR) return false;
  }
  return false;
}

bool DownloadFile::write(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool DownloadFile::close() { return ::close(std::exchange(descriptor_, -1)) == 0; }

}  // namespace orvanta
