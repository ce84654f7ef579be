#pragma once

#include <memory>
#include <optional>
#include <string>

#include "orvanta/Platform/RuntimeClass.h"

// The advertising identifier. OrvantaIdentifierUtil::advertisingId looks up the class
// "ASIdentifierManager" (Platform::classNamed), asks it for the manager and the manager for the
// identifier, in this order and on its caller's thread.
//
// Requirements for implementers:
// - Return from any thread, without waiting for the user's decision.
// - Keep the class object alive as long as the platform. The manager is shared with the caller.
// - Read the identifier on every call: the user can change or withdraw it at any time.

namespace orvanta {

struct NSUUID {
  std::string UUIDString;  // NOLINT(readability-identifier-naming): the platform's name
};

class ASIdentifierManager {
 public:
  virtual ~ASIdentifierManager() = default;
  /// Returns all zeros if the user does not allow tracking, nullopt while the device is not ready.
  virtual std::optional<NSUUID> advertisingIdentifier() = 0;
};

/// The class object that `Platform::classNamed("ASIdentifierManager")` returns.
class ASIdentifierManagerClass : public RuntimeClass {
 public:
  /// Returns the process-wide manager, or nullptr if there is none.
  virtual std::shared_ptr<ASIdentifierManager> sharedManager() = 0;
};

}  // namespace orvanta
