#pragma once

#include <string>
#include <vector>

#include "orvanta/Platform/NSBundle.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta {

/// Whether the system would start a service extension for a payload, and every condition that the
/// payload does not meet: `aps.mutable-content` is 1, and `aps.alert` has something to show.
struct LaunchVerdict {
  std::vector<std::string> unmet;
  bool starts() const { return unmet.empty(); }
};
LaunchVerdict launchVerdict(const Dictionary& payload);

/// The content that the system makes of a payload before any extension sees it. A value of another
/// kind than the system expects counts as absent. A localisation key wins over the plain text; "%@"
/// and "%1$@" in the bundle's text for it take the arguments.
UNNotificationContent contentForPayload(const Dictionary& payload, NSBundle& bundle);

}  // namespace orvanta
