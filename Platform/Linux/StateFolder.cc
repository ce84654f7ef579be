#include "orvanta/Linux/StateFolder.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cctype>
#include <cstdlib>
#include <stdexcept>
#include <system_error>

#include "orvanta/Foundation/Url.h"

namespace orvanta {

namespace fs = std::filesystem;

StateFolder::StateFolder(const std::string& name) : isTemporary_(name.empty()) {
  if (isTemporary_) {
    std::string pattern = (fs::temp_directory_path() / "orvanta-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
      throw std::runtime_error(pattern + ": no temporary folder can be made");
    }
    path_ = pattern;
    return;
  }
  std::error_code error;
  fs::create_directories(name, error);
  if (error) throw std::runtime_error(name + ": " + error.message());
  path_ = fs::canonical(name);
  lock_ = FileDescriptor(
      ::open((path_ / ".lock").c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
  if (!lock_.isOpen() || ::flock(lock_.get(), LOCK_EX) != 0) {
    throw std::runtime_error(name + ": the folder cannot be locked");
  }
}

StateFolder::~StateFolder() {
  std::error_code ignored;
  if (isTemporary_) fs::remove_all(path_, ignored);
}

std::string StateFolder::rewritePaths(std::string_view string) const {
  std::string result(string);
  const std::string url(Url::fileURLWithPath(path_.string() + "/").absoluteString());
  for (const std::string& from : {url, path_.string() + "/"}) {
    for (auto at = result.find(from); at != std::string::npos; at = result.find(from, at + 1)) {
      // The folder's path may also be the end of a longer one.
      const char before = at == 0 ? ' ' : result[at - 1];
      const bool isInside = std::isalnum(static_cast<unsigned char>(before)) != 0 ||
                            std::string_view("/._-%").find(before) != std::string_view::npos;
      if (!isInside) result.replace(at, from.size(), "state/");
    }
  }
  return result;
}

}  // namespace orvanta
