#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>

#include "orvanta/Platform/NSURLSession.h"

namespace orvanta {

/// Limits of a transfer, with the code of NSURLErrorDomain for each that is exceeded.
struct TransferLimits {
  std::chrono::milliseconds idle{60'000};                   // without a byte, at any stage: -1001
  std::chrono::milliseconds total{7LL * 24 * 3600 * 1000};  // from start to end: -1001
  std::uint64_t bytes = 256'000'000;                        // of the body, after decoding: -1103
  int redirects = 20;                                       // one more: -1007
};

/// The outcome of a transfer: either a file or an error.
struct TransferResult {
  std::optional<std::filesystem::path> file;  // the temporary file, the caller's to move or remove
  Ref<NSURLResponse> response;                // with a file, and with errors after its headers
  Ref<NSError> error;
};

/// Called on the thread of the transfer with the decoded bytes so far and the announced size, which
/// is 0 if there is none or the body is compressed. An exception ends the transfer and propagates.
using TransferProgress = std::function<void(std::uint64_t received, std::uint64_t expected)>;

/// Fetches an http or https URL into a new file of the folder. Blocks; may be called from any
/// thread.
///
///   const TransferResult result = transfer(url, temporaryFolder, {});
///   if (result.error) return result.error;
///   moveFile(*result.file, destination);
///
/// The file is named as the platform names its downloads: "CFNetworkDownload_", six letters or
/// digits, ".tmp". The body is streamed to it, with gzip and deflate undone. After an error no file
/// is left.
///
/// Certificates are checked. Names and passwords of URLs, cookies, and the environment's proxies
/// are not used. A redirect leads to http and https only.
///
/// Errors are those of NSURLErrorDomain, with NSLocalizedDescription, NSErrorFailingURLStringKey
/// and NSErrorFailingURLKey. An HTTP error status is not an error.
///
/// The response is the final one, after redirects. Its headers are in the order of arrival, a
/// repeated one at its first place with the values joined by ", "; bytes that cannot be printed are
/// replaced by '?'. More than 256 lines or 64 KiB of headers are a bad response, -1011.
TransferResult transfer(const Url& url, const std::filesystem::path& folder,
                        const TransferLimits& limits, const TransferProgress& progress = {});

}  // namespace orvanta
