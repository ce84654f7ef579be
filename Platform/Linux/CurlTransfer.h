#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>

#include "orvanta/Platform/NSURLSession.h"

namespace orvanta {

/// How far a transfer may go.
struct TransferLimits {
  std::chrono::milliseconds idle{60'000};                   // without a byte, at any stage: -1001
  std::chrono::milliseconds total{7LL * 24 * 3600 * 1000};  // from start to end: -1001
  std::uint64_t bytes = 256'000'000;                        // of the body, after decoding: -1103
  int redirects = 20;                                       // one more: -1007
};

/// What a transfer ended with, as NSURLSession reports it.
struct TransferResult {
  std::optional<std::filesystem::path> file;  // the temporary file, the caller's to move or remove
  Ref<NSURLResponse> response;
  Ref<NSError> error;
};

/// Told the decoded bytes so far and the size that was announced, 0 for none or when the body is
/// compressed; on the thread that transfers. What it throws ends the transfer and passes on.
using TransferProgress = std::function<void(std::uint64_t received, std::uint64_t expected)>;

/// Fetches a URL over http or https, and nothing else, into a new file of the folder, named
/// "CFNetworkDownload_" + six letters or digits + ".tmp" as the platform names its own. Blocks; may
/// be called from any thread. The body is streamed to the file, gzip and deflate undone;
/// certificates are checked. Neither names and passwords in URLs nor cookies are sent, and proxies
/// of the environment are not used. Errors are those of NSURLErrorDomain, with
/// NSLocalizedDescription, NSErrorFailingURLStringKey and NSErrorFailingURLKey. An HTTP error
/// status is none. No file is left behind after an error.
///
/// The response is that of the final answer and is there as soon as its headers were complete,
/// error or not. Its headers stand in the order of arrival, a repeated one at its first place, the
/// values joined by ", "; a question mark replaces each byte that is no UTF-8 or belongs to a
/// control character. More than 256 lines or 64 KiB of them are a bad answer, -1011.
TransferResult transfer(const Url& url, const std::filesystem::path& folder,
                        const TransferLimits& limits, const TransferProgress& progress = {});

}  // namespace orvanta
