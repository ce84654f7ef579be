#pragma once

#include <cstdint>
#include <optional>

#include "orvanta/Platform/NSURLSession.h"

namespace orvanta {

// Codes of NSURLErrorDomain that only the host answers.
inline constexpr std::int64_t kNSURLErrorUnknown = -1;
inline constexpr std::int64_t kNSURLErrorCannotDecodeRawData = -1015;
inline constexpr std::int64_t kNSURLErrorCannotDecodeContentData = -1016;
inline constexpr std::int64_t kNSURLErrorNoPermissionsToReadFile = -1102;
inline constexpr std::int64_t kNSURLErrorCannotCloseFile = -3002;
inline constexpr std::int64_t kNSURLErrorCannotWriteToFile = -3003;

/// An error of NSURLErrorDomain with the platform's text for the code and the URL that failed.
Ref<NSError> urlError(std::int64_t code, const std::optional<Url>& url);

}  // namespace orvanta
