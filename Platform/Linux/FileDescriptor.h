#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <string_view>
#include <utility>

namespace orvanta {

/// Owns a file descriptor and closes it. Functions that fail set errno; calls that a signal
/// interrupts are repeated.
class FileDescriptor {
 public:
  /// Takes ownership; -1, as a failed open returns, is no descriptor.
  explicit FileDescriptor(int descriptor = -1) noexcept : descriptor_(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept
      : descriptor_(std::exchange(other.descriptor_, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~FileDescriptor() {
    if (isOpen()) ::close(descriptor_);
  }

  bool isOpen() const { return descriptor_ >= 0; }
  int get() const { return descriptor_; }

  /// Closes early, to see write errors that a file system reports only then.
  bool close() { return ::close(std::exchange(descriptor_, -1)) == 0; }

  /// Returns the number of bytes read, 0 at the end of the file, -1 on failure.
  ssize_t read(char* buffer, std::size_t size) const {
    for (;;) {
      const ssize_t count = ::read(descriptor_, buffer, size);
      if (count >= 0 || errno != EINTR) return count;
    }
  }

  /// Writes all bytes; false on failure.
  bool write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
      if (count > 0) {
        bytes.remove_prefix(static_cast<std::size_t>(count));
      } else if (count == 0 || errno != EINTR) {
        return false;
      }
    }
    return true;
  }

 private:
  int descriptor_;
};

}  // namespace orvanta
