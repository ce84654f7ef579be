#include "orvanta/Linux/PosixFileManager.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>  // renameat2
#include <system_error>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Description.h"
#include "orvanta/Linux/FileDescriptor.h"

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

namespace {

struct MoveFailure {
  int posix;
  int cocoa;
  std::string_view format;  // arguments: the file's name, the destination folder's name
};
// The platform's codes and messages; the last row is for every other errno.
constexpr MoveFailure kMoveFailures[] = {
    {EEXIST, 516,
     "“%@” couldn’t be moved to “%@” because an item with the same name already exists."},
    {ENOENT, 4,
     "“%@” couldn’t be moved to “%@” because either the former doesn’t exist, or the folder "
     "containing the latter doesn’t exist."},
    {EACCES, 513, "“%@” couldn’t be moved because you don’t have permission to access “%@”."},
    {EPERM, 513, "“%@” couldn’t be moved because you don’t have permission to access “%@”."},
    {ENAMETOOLONG, 514, "“%@” couldn’t be moved to “%@” because the name is too long."},
    {ENOSPC, 640, "“%@” couldn’t be moved to “%@” because there isn’t enough space."},
    {EDQUOT, 640, "“%@” couldn’t be moved to “%@” because there isn’t enough space."},
    {EROFS, 642, "“%@” couldn’t be moved to “%@” because the volume is read only."},
    {0, 512, "“%@” couldn’t be moved to “%@”."},
};

constexpr std::string_view kCocoaDomain = "NSCocoaErrorDomain";

Ref<NSError> moveError(int error, const std::string& source, const std::string& destination) {
  const MoveFailure* failure = kMoveFailures;
  while (failure->posix != error && failure->posix != 0) ++failure;

  const fs::path folder = fs::path(destination).parent_path();
  const std::string folderName = (folder.has_filename() ? folder.filename() : folder).string();
  const Value underlying = NSError::errorWithDomain("NSPOSIXErrorDomain", error, Dictionary(),
                                                    std::generic_category().message(error));
  return NSError::errorWithDomain(
      kCocoaDomain, failure->cocoa,
      Dictionary{{"NSSourceFilePathErrorKey", source},
                 {"NSUserStringVariant", Array{"Move"}},
                 {"NSDestinationFilePath", destination},
                 {"NSFilePath", source},
                 {NSError::kUnderlyingError, underlying}},
      formatted(failure->format, {fs::path(source).filename().string(), folderName}));
}

Ref<NSError> schemeError(int code, std::string_view verb, const Url& url) {
  return NSError::errorWithDomain(
      kCocoaDomain, code, Dictionary{{"NSURL", url}},
      formatted("The file couldn’t be %@ because the specified URL type isn’t supported.", {verb}));
}

}  // namespace

PosixFileManager::PosixFileManager(const fs::path& cachesFolder)
    : cachesFolder_(fs::absolute(cachesFolder).lexically_normal()) {
  fs::create_directories(cachesFolder_);
}

std::vector<Url> PosixFileManager::URLsForCachesDirectory() {
  return {Url::fileURLWithPath((cachesFolder_ / "").string())};
}

Ref<NSError> PosixFileManager::moveItemAtURL(const Url& source, const Url& destination) {
  if (!source.isFileURL()) return schemeError(262, "opened", source);
  if (!destination.isFileURL()) return schemeError(518, "saved", destination);
  const std::string from = source.path();
  const std::string to = destination.path();
  const int error = moveFile(from, to);
  if (error == 0) return nullptr;
  return moveError(error, from, to);
}

}  // namespace orvanta
