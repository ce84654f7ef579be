#pragma once

#include <cstdint>
#include <optional>

#include "orvanta/Platform/NSURLSession.h"

namespace orvanta {

// Codes of NSURLErrorDomain that only implementations of a session need.
inline constexpr std::int64_t kNSURLErrorUnknown = -1;
inline constexpr std::int64_t kNSURLErrorCannotDecodeRawData = -1015;
inline constexpr std::int64_t kNSURLErrorCannotDecodeContentData = -1016;
inline constexpr std::int64_t kNSURLErrorFileDoesNotExist = -1100;
inline constexpr std::int64_t kNSURLErrorNoPermissionsToReadFile = -1102;
inline constexpr std::int64_t kNSURLErrorCannotCloseFile = -3002;
inline constexpr std::int64_t kNSURLErrorCannotWriteToFile = -3003;

/// Returns an error of NSURLErrorDomain with the platform's description of the code and the URL
/// that failed.
Ref<NSError> urlError(std::int64_t code, const std::optional<Url>& url);

}  // namespace orvanta
