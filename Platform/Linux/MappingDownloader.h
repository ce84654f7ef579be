#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "orvanta/Linux/CurlTransfer.h"
#include "orvanta/Linux/FolderDeviceFiles.h"
#include "orvanta/Simulator/Downloader.h"

namespace orvanta {

/// Where URLs that begin with a prefix are fetched from: a folder, or another URL's beginning.
struct UrlMapping {
  std::string prefix;
  std::string target;

  bool isFolder() const;
};

/// Downloads from mapped folders and from the network. The longest prefix that a URL begins with
/// counts. File URLs are read only below mapped folders. A folder takes no time; the network takes
/// the time that the transfer took.
class MappingDownloader final : public Downloader {
 public:
  MappingDownloader(FolderDeviceFiles& files, std::vector<UrlMapping> mappings,
                    TransferLimits limits, TransferProgress progress);

  Download download(const Url& url, double timeLimit) override;

 private:
  Download downloadFromNetwork(const Url& url, double timeLimit);
  Download downloadFile(const std::filesystem::path& folder, const std::string& below,
                        const Url& url, bool overHTTP);

  FolderDeviceFiles& files_;
  std::vector<UrlMapping> mappings_;
  TransferLimits limits_;
  TransferProgress progress_;
};

}  // namespace orvanta
