#pragma once

#include <functional>
#include <iosfwd>
#include <string>

#include "orvanta/Linux/NotificationHost.h"
#include "orvanta/Tool/Input.h"

namespace orvanta::tool {

/// Everything that came of a payload, for people: whether the system would start the extension,
/// what the payload asks for, a timeline of the steps, the notification as shown, and why anything
/// that was asked for is missing. `neutral` rewrites paths of this run.
void printSheet(const Input& payload, const HostReport& report, OperatingSystemVersion os,
                const std::function<std::string(std::string_view)>& neutral, std::ostream& out);

}  // namespace orvanta::tool
