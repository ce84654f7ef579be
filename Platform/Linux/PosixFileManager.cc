#include "orvanta/Linux/PosixFileManager.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>  // renameat2
#include <system_error>

#include "orvanta/Linux/FileDescriptor.h"
#include "orvanta/Simulator/MoveErrors.h"

namespace orvanta {

namespace {

namespace fs = std::filesystem;

// These return an errno, 0 for success.

int copyContent(const FileDescriptor& from, const FileDescriptor& to) {
  std::array<char, 65536> buffer;
  for (;;) {
    const ssize_t count = from.read(buffer.data(), buffer.size());
    if (count == 0) return 0;
    if (count < 0 || !to.write({buffer.data(), static_cast<std::size_t>(count)})) return errno;
  }
}

/// Moves a regular file between file systems. O_NONBLOCK keeps a pipe without a writer from
/// blocking the open; fstat then rejects it.
int copyThenRemove(const char* source, const char* destination) {
  const FileDescriptor from(::open(source, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!from.isOpen() || ::fstat(from.get(), &status) != 0) return errno;
  if (!S_ISREG(status.st_mode)) return S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
  FileDescriptor to(
      ::open(destination, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
  if (!to.isOpen()) return errno;

  int error = copyContent(from, to);
  if (error == 0) {
    // Best effort: not every file system stores modes and times.
    (void)::fchmod(to.get(), status.st_mode & 0777U);
    const std::array times{status.st_atim, status.st_mtim};
    (void)::futimens(to.get(), times.data());
    if (!to.close() || ::unlink(source) != 0) error = errno;
  }
  if (error != 0) ::unlink(destination);
  return error;
}

/// Moves within a file system. Like an exclusive rename, link fails if the destination exists.
int linkThenRemove(const char* source, const char* destination) {
  if (::link(source, destination) != 0) return errno;
  if (::unlink(source) == 0) return 0;
  const int error = errno;
  ::unlink(destination);
  return error;
}

}  // namespace

int moveFile(const std::string& source, const std::string& destination) {
  if ((source + destination).find('\0') != std::string::npos) return EINVAL;
  const char* const from = source.c_str();
  const char* const to = destination.c_str();
  if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return 0;
  if (errno == EXDEV) return copyThenRemove(from, to);
  // Some file systems do not support RENAME_NOREPLACE, and some of these no hard links either.
  if (errno != EINVAL && errno != ENOSYS) return errno;
  const int error = linkThenRemove(from, to);
  const bool hasNoLinks = error == EPERM || error == EOPNOTSUPP || error == ENOSYS;
  return hasNoLinks ? copyThenRemove(from, to) : error;
}

static MoveFailure failureFor(int error) {
  switch (error) {
    case EEXIST:
      return MoveFailure::alreadyExists;
    case ENOENT:
      return MoveFailure::notFound;
    case EACCES:
    case EPERM:
      return MoveFailure::noPermission;
    case ENAMETOOLONG:
      return MoveFailure::nameTooLong;
    case ENOSPC:
    case EDQUOT:
      return MoveFailure::noSpace;
    case EROFS:
      return MoveFailure::readOnlyVolume;
    default:
      return MoveFailure::other;
  }
}

PosixFileManager::PosixFileManager(const fs::path& cachesFolder)
    : cachesFolder_(fs::absolute(cachesFolder).lexically_normal()) {
  fs::create_directories(cachesFolder_);
}

std::vector<Url> PosixFileManager::URLsForCachesDirectory() {
  return {Url::fileURLWithPath((cachesFolder_ / "").string())};
}

Ref<NSError> PosixFileManager::moveItemAtURL(const Url& source, const Url& destination) {
  if (Ref<NSError> error = schemeError(source, destination)) return error;
  const std::string from = source.path();
  const std::string to = destination.path();
  const int error = moveFile(from, to);
  if (error == 0) return nullptr;
  return moveError(failureFor(error), {error, std::generic_category().message(error)}, from, to);
}

}  // namespace orvanta
