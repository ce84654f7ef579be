#include "orvanta/Linux/DownloadFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>  // mkostemps

namespace orvanta {

DownloadFile::~DownloadFile() {
  if (!path_.empty()) ::unlink(path_.c_str());
}

bool DownloadFile::create() {
  constexpr int kSuffixLength = 4;  // ".tmp"
  std::string path = folder_ / "CFNetworkDownload_XXXXXX.tmp";
  file_ = FileDescriptor(::mkostemps(path.data(), kSuffixLength, O_CLOEXEC));
  if (file_.isOpen()) path_ = std::move(path);
  return file_.isOpen();
}

}  // namespace orvanta
