#include "orvanta/Linux/MappingDownloader.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <system_error>
#include <utility>

#include "orvanta/Foundation/CharacterSet.h"
#include "orvanta/Simulator/URLErrors.h"
#include "orvanta/Simulator/UniformTypes.h"

namespace orvanta {

namespace {

namespace fs = std::filesystem;

Download failed(std::int64_t code, const Url& url) { return {.error = urlError(code, url)}; }

/// Whether a path is below a folder, links followed.
bool isBelow(const fs::path& path, const fs::path& folder) {
  std::error_code error;
  const fs::path real = fs::canonical(path, error);
  if (error) return false;
  const fs::path root = fs::canonical(folder, error);
  if (error) return false;
  const auto [end, ignored] = std::mismatch(root.begin(), root.end(), real.begin(), real.end());
  return end == root.end();
}

/// Copies a file over an empty one. Returns 0, or a code of NSURLErrorDomain.
std::int64_t copyFile(const fs::path& from, const fs::path& to, std::uint64_t maxBytes) {
  std::ifstream in(from, std::ios::binary);
  if (!in) return kNSURLErrorNoPermissionsToReadFile;
  std::ofstream out(to, std::ios::binary);
  char buffer[65536];
  std::uint64_t copied = 0;
  while (in.read(buffer, sizeof buffer), in.gcount() > 0) {
    copied += static_cast<std::uint64_t>(in.gcount());
    if (copied > maxBytes) return kNSURLErrorDataLengthExceedsMaximum;
    if (!out.write(buffer, in.gcount())) return kNSURLErrorCannotWriteToFile;
  }
  if (in.bad()) return kNSURLErrorNoPermissionsToReadFile;
  return out.flush() ? 0 : kNSURLErrorCannotWriteToFile;
}

}  // namespace

bool UrlMapping::isFolder() const { return target.find("://") == std::string::npos; }

MappingDownloader::MappingDownloader(FolderDeviceFiles& files, std::vector<UrlMapping> mappings,
                                     TransferLimits limits, TransferProgress progress)
    : files_(files),
      mappings_(std::move(mappings)),
      limits_(limits),
      progress_(std::move(progress)) {}

Download MappingDownloader::download(const Url& url, double timeLimit) {
  const UrlMapping* longest = nullptr;
  for (const UrlMapping& mapping : mappings_) {
    const bool matches = url.absoluteString().starts_with(mapping.prefix);
    if (matches && (longest == nullptr || mapping.prefix.size() > longest->prefix.size())) {
      longest = &mapping;
    }
  }
  if (longest != nullptr) {
    const std::string rest(url.absoluteString().substr(longest->prefix.size()));
    if (longest->isFolder()) {
      return downloadFile(longest->target, percentDecoded(rest.substr(0, rest.find_first_of("?#"))),
                          url, /*overHTTP=*/true);
    }
    const auto mapped = Url::parse(longest->target + rest);
    return mapped ? downloadFromNetwork(*mapped, timeLimit)
                  : failed(kNSURLErrorUnsupportedURL, url);
  }
  if (!url.isFileURL()) return downloadFromNetwork(url, timeLimit);
  const bool isMapped =
      std::any_of(mappings_.begin(), mappings_.end(), [&](const UrlMapping& mapping) {
        return mapping.isFolder() && isBelow(url.path(), mapping.target);
      });
  return isMapped ? downloadFile("/", url.path(), url, /*overHTTP=*/false)
                  : failed(kNSURLErrorNoPermissionsToReadFile, url);
}

Download MappingDownloader::downloadFromNetwork(const Url& url, double timeLimit) {
  TransferLimits limits = limits_;
  const auto milliseconds = static_cast<std::int64_t>(std::min(timeLimit, 1e9) * 1000.0);
  limits.total = std::min(limits.total, std::chrono::milliseconds(milliseconds));
  const auto start = std::chrono::steady_clock::now();
  const TransferResult result = transfer(url, files_.downloads(), limits, progress_);
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  Download download{.response = result.response, .error = result.error, .seconds = elapsed.count()};
  if (result.file) {
    download.file = Url::fileURLWithPath(files_.newDownload(*result.file).string());
  }
  return download;
}

Download MappingDownloader::downloadFile(const fs::path& folder, const std::string& below,
                                         const Url& url, bool overHTTP) {
  const fs::path file = folder / fs::path(below).relative_path();
  std::error_code error;
  const bool exists = below.find('\0') == std::string::npos && isBelow(file, folder) &&
                      fs::is_regular_file(file, error);
  if (!exists && !overHTTP) return failed(kNSURLErrorFileDoesNotExist, url);
  const fs::path copy = files_.newDownload();
  if (exists) {
    if (const std::int64_t code = copyFile(file, copy, limits_.bytes); code != 0) {
      fs::remove(copy, error);
      return failed(code, url);
    }
  }
  const auto extension = file.extension().string();
  const auto mime =
      exists && !extension.empty() ? mimeTypeForExtension(extension.substr(1)) : std::nullopt;
  NSURLResponse::Parts parts{url, mime, std::nullopt, {}};
  if (overHTTP) {
    parts.statusCode = exists ? 200 : 404;
    if (mime) parts.headers.emplace_back("Content-Type", *mime);
    parts.headers.emplace_back("Content-Length", std::to_string(fs::file_size(copy)));
  }
  return {.file = Url::fileURLWithPath(copy.string()),
          .response = NSURLResponse::responseWithParts(std::move(parts))};
}

}  // namespace orvanta
