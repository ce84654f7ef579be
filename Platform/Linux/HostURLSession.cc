#include "orvanta/Linux/HostURLSession.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include "orvanta/Foundation/CharacterSet.h"
#include "orvanta/Foundation/Description.h"
#include "orvanta/Linux/Files.h"
#include "orvanta/Linux/MediaTypes.h"
#include "orvanta/Linux/URLErrors.h"

namespace orvanta {

namespace {

namespace fs = std::filesystem;

constexpr double kGraceAfterExpiry = 5.0;  // seconds

/// Whether a path lies below a folder, links followed.
bool liesBelow(const fs::path& path, const fs::path& folder) {
  std::error_code error;
  const fs::path real = fs::canonical(path, error);
  if (error) return false;
  const fs::path root = fs::canonical(folder, error);
  if (error) return false;
  const auto [end, ignored] = std::mismatch(root.begin(), root.end(), real.begin(), real.end());
  return end == root.end();
}

/// Makes a new empty file: 0, or an errno; EEXIST also for a dangling link of that name.
int makeNewFile(const fs::path& file) {
  const int made = open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
  return made >= 0 && close(made) == 0 ? 0 : errno;
}

/// Copies a file over an empty one. 0, or the code of NSURLErrorDomain.
std::int64_t copyFile(const fs::path& from, const fs::path& to, std::uint64_t most) {
  std::ifstream in(from, std::ios::binary);
  if (!in) return kNSURLErrorNoPermissionsToReadFile;
  std::ofstream out(to, std::ios::binary);
  char buffer[65536];
  std::uint64_t copied = 0;
  while (in.read(buffer, sizeof buffer), in.gcount() > 0) {
    copied += static_cast<std::uint64_t>(in.gcount());
    if (copied > most) return kNSURLErrorDataLengthExceedsMaximum;
    if (!out.write(buffer, in.gcount())) return kNSURLErrorCannotWriteToFile;
  }
  if (in.bad()) return kNSURLErrorNoPermissionsToReadFile;
  return out.flush() ? 0 : kNSURLErrorCannotWriteToFile;
}

std::string sizeText(const fs::path& file) {
  std::error_code error;
  const auto size = fs::file_size(file, error);
  return error ? "no bytes" : std::to_string(size) + (size == 1 ? " byte" : " bytes");
}

}  // namespace

bool UrlMapping::isFolder() const { return target.find("://") == std::string::npos; }

HostURLSession::HostURLSession(EventLoop& loop, Timeline& timeline, Options options)
    : loop_(loop), timeline_(timeline), options_(std::move(options)) {}

void HostURLSession::downloadTaskWithURL(const std::optional<Url>& url,
                                         DownloadCompletion completionHandler) {
  Fetched fetched;
  if (url) {
    timeline_.add("the download of " + url->description() + " starts");
    fetched = fetch(*url);
  } else {
    fetched.result.error = urlError(kNSURLErrorUnsupportedURL, std::nullopt);
  }
  loop_.scheduleIn(fetched.seconds,
                   [this, result = std::move(fetched.result),
                    completion = std::move(completionHandler)] { report(result, completion); });
}

void HostURLSession::report(const TransferResult& result, const DownloadCompletion& completion) {
  if (result.error) {
    timeline_.add("the download fails: " + describe(result.error->localizedDescription()));
    completion(std::nullopt, result.response, result.error);
    return;
  }
  const auto& response = *result.response;
  timeline_.add(
      "the download is there: " +
      (response.statusCode() ? "status " + std::to_string(*response.statusCode()) + ", " : "") +
      sizeText(*result.file) + ", " + response.MIMEType().value_or("no MIME type"));
  completion(Url::fileURLWithPath(result.file->string()), result.response, nullptr);
  std::error_code ignored;
  fs::remove(*result.file, ignored);  // what was not moved away is gone
}

HostURLSession::Fetched HostURLSession::fetch(const Url& url) {
  if (options_.answer) return {answer(*options_.answer, url), options_.answer->delay};
  const UrlMapping* longest = nullptr;
  for (const UrlMapping& mapping : options_.mappings) {
    const bool matches = url.absoluteString().starts_with(mapping.prefix);
    if (matches && (longest == nullptr || mapping.prefix.size() > longest->prefix.size())) {
      longest = &mapping;
    }
  }
  if (longest != nullptr) return fetchMapped(*longest, url);
  if (url.isFileURL()) {
    for (const UrlMapping& mapping : options_.mappings) {
      if (mapping.isFolder() && liesBelow(url.path(), mapping.target)) {
        return {fetchFile("/", url.path(), url, /*overHTTP=*/false)};
      }
    }
    return {{std::nullopt, nullptr, urlError(kNSURLErrorNoPermissionsToReadFile, url)}};
  }
  return fetchFromNetwork(url);
}

HostURLSession::Fetched HostURLSession::fetchFromNetwork(const Url& url) {
  TransferLimits limits = options_.limits;
  const double left = std::max(0.0, expiry_ - loop_.now()) + kGraceAfterExpiry;
  limits.total =
      std::min(limits.total,
               std::chrono::milliseconds(static_cast<std::int64_t>(std::min(left, 1e9) * 1000.0)));
  const auto start = std::chrono::steady_clock::now();
  TransferResult result = transfer(url, options_.temporaryFolder, limits, options_.progress);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  if (result.file) {
    result.file = newTemporaryFile(*result.file);
  }
  return {std::move(result), taken.count()};
}

HostURLSession::Fetched HostURLSession::fetchMapped(const UrlMapping& mapping, const Url& url) {
  const std::string rest(url.absoluteString().substr(mapping.prefix.size()));
  if (mapping.isFolder()) {
    return {fetchFile(mapping.target, percentDecoded(rest.substr(0, rest.find_first_of("?#"))), url,
                      /*overHTTP=*/true)};
  }
  const auto mapped = Url::parse(mapping.target + rest);
  if (!mapped) return {{std::nullopt, nullptr, urlError(kNSURLErrorUnsupportedURL, url)}};
  return fetchFromNetwork(*mapped);
}

TransferResult HostURLSession::fetchFile(const fs::path& folder, const std::string& below,
                                         const Url& url, bool overHTTP) {
  const fs::path file = folder / fs::path(below).relative_path();
  std::error_code error;
  const bool isThere = below.find('\0') == std::string::npos && liesBelow(file, folder) &&
                       fs::is_regular_file(file, error);
  if (!isThere && !overHTTP) return {std::nullopt, nullptr, urlError(-1100, url)};
  const fs::path temporary = newTemporaryFile();
  if (isThere) {
    if (const std::int64_t code = copyFile(file, temporary, options_.limits.bytes); code != 0) {
      fs::remove(temporary, error);
      return {std::nullopt, nullptr, urlError(code, url)};
    }
  }
  const auto extension = file.extension().string();
  const auto mime =
      isThere && !extension.empty() ? mimeTypeForExtension(extension.substr(1)) : std::nullopt;
  NSURLResponse::Parts parts{url, mime, std::nullopt, {}};
  if (overHTTP) {
    parts.statusCode = isThere ? 200 : 404;
    if (mime) parts.headers.emplace_back("Content-Type", *mime);
    parts.headers.emplace_back("Content-Length", std::to_string(fs::file_size(temporary)));
  }
  return {temporary, NSURLResponse::responseWithParts(std::move(parts)), nullptr};
}

TransferResult HostURLSession::answer(const Scenario::Media& media, const Url& url) {
  if (media.fails) return {std::nullopt, nullptr, urlError(media.errorCode, url)};
  const fs::path temporary =
      media.tempName ? options_.temporaryFolder / *media.tempName : newTemporaryFile();
  if (media.tempName && makeNewFile(temporary) != 0) {
    return {std::nullopt, nullptr, urlError(kNSURLErrorCannotCreateFile, url)};
  }
  fs::resize_file(temporary, media.bytes);
  if (media.destinationExists) {
    makeNewFile(options_.cachesFolder / temporary.filename());
  }
  NSURLResponse::Parts parts{url, media.mime, media.status, {}};
  if (media.mime) parts.headers.emplace_back("Content-Type", *media.mime);
  parts.headers.emplace_back("Content-Length", std::to_string(media.bytes));
  return {temporary, NSURLResponse::responseWithParts(std::move(parts)), nullptr};
}

fs::path HostURLSession::newTemporaryFile(const fs::path& content) const {
  constexpr int kMost = 100'000;
  for (int number = 1; number <= kMost; ++number) {
    char name[64];
    std::snprintf(name, sizeof name, "CFNetworkDownload_%06d.tmp", number);
    if (fs::exists(fs::symlink_status(options_.cachesFolder / name))) continue;
    fs::path file = options_.temporaryFolder / name;
    const int error = content.empty() ? makeNewFile(file) : moveFile(content, file);
    if (error == 0) return file;
    if (error != EEXIST)
      throw fs::filesystem_error("no file can be made", file, {error, std::generic_category()});
  }
  throw std::runtime_error(options_.temporaryFolder.string() + ": too many temporary files");
}

}  // namespace orvanta
