#pragma once

#include <memory>
#include <optional>
#include <string>

#include "orvanta/Platform/RuntimeClass.h"

namespace orvanta {

struct NSUUID {
  std::string UUIDString;  // NOLINT(readability-identifier-naming): the platform's name
};

/// The advertising framework's manager.
class ASIdentifierManager {
 public:
  virtual ~ASIdentifierManager() = default;
  /// All zeros where the user does not allow tracking; none while the device is not ready.
  virtual std::optional<NSUUID> advertisingIdentifier() = 0;
};

/// What the platform's lookup answers for "ASIdentifierManager".
class ASIdentifierManagerClass : public RuntimeClass {
 public:
  /// The one manager of the process, or nullptr.
  virtual std::shared_ptr<ASIdentifierManager> sharedManager() = 0;
};

}  // namespace orvanta
