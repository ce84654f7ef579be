#pragma once

#include <functional>
#include <string>
#include <vector>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Linux/NotificationHost.h"

namespace orvanta::tool {

/// Everything that came of a payload, for programs. `neutral` rewrites paths of this run.
Dictionary ledger(const HostReport& report, const std::vector<std::string>& log,
                  const std::function<std::string(std::string_view)>& neutral);

}  // namespace orvanta::tool
