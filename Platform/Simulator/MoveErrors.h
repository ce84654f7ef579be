#pragma once

#include <string>
#include <string_view>

#include "orvanta/Foundation/Url.h"
#include "orvanta/Platform/NSError.h"

namespace orvanta {

/// Why a file could not be moved, as far as the platform distinguishes.
enum class MoveFailure : std::uint8_t {
  alreadyExists,
  notFound,
  noPermission,
  nameTooLong,
  noSpace,
  readOnlyVolume,
  other
};

/// The system's own error code with its message.
struct POSIXError {
  int code;
  std::string message;
};

/// Returns the NSCocoaErrorDomain error of a move between two paths, with the platform's code and
/// sentence, and the POSIX error underneath.
Ref<NSError> moveError(MoveFailure failure, const POSIXError& underlying, const std::string& source,
                       const std::string& destination);

/// Returns the error of a move whose source or destination is not a file URL, nil when both are.
Ref<NSError> schemeError(const Url& source, const Url& destination);

}  // namespace orvanta
