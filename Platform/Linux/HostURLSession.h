#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "orvanta/Linux/EventLoop.h"
#include "orvanta/Linux/Scenario.h"
#include "orvanta/Linux/Transfer.h"
#include "orvanta/Platform/NSURLSession.h"

namespace orvanta {

/// Where URLs that begin with a prefix are fetched from: a folder, or another URL's beginning.
struct UrlMapping {
  std::string prefix;
  std::string target;

  bool isFolder() const;
};

/// Downloads on the host's loop. A scenario's answer comes first, then the longest mapped prefix,
/// then the network; file URLs are read only below mapped folders. A transfer takes place when it
/// is asked for and is reported when the time that it took has passed on the loop's clock; a file
/// of a folder takes none.
class HostURLSession final : public NSURLSession {
 public:
  struct Options {
    std::vector<UrlMapping> mappings;
    std::optional<Scenario::Media> answer;
    TransferLimits limits;
    TransferProgress progress;
    std::filesystem::path temporaryFolder;
    std::filesystem::path cachesFolder;
  };
  HostURLSession(EventLoop& loop, Timeline& timeline, Options options);

  void downloadTaskWithURL(const std::optional<Url>& url,
                           DownloadCompletion completionHandler) override;

  /// When the request at hand expires, on the loop's clock; a transfer may go on for 5 seconds
  /// more.
  void setExpiry(double seconds) { expiry_ = seconds; }

 private:
  struct Fetched {
    TransferResult result;
    double seconds = 0.0;  // that it took, on the loop's clock
  };
  Fetched fetch(const Url& url);
  Fetched fetchFromNetwork(const Url& url);
  Fetched fetchMapped(const UrlMapping& mapping, const Url& url);
  TransferResult fetchFile(const std::filesystem::path& folder, const std::string& below,
                           const Url& url, bool overHTTP);
  TransferResult answer(const Scenario::Media& media, const Url& url);
  /// A new file whose name, in the platform's form, the caches do not have: the same names in
  /// every run. It is empty, or the file given, moved.
  std::filesystem::path newTemporaryFile(const std::filesystem::path& content = {}) const;
  void report(const TransferResult& result, const DownloadCompletion& completion);

  EventLoop& loop_;
  Timeline& timeline_;
  Options options_;
  double expiry_ = 0.0;
};

}  // namespace orvanta
