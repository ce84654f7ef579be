#pragma once

#include <string>
#include <vector>

#include "orvanta/Platform/NSBundle.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta {

/// Whether the system would start a service extension for a payload, and each condition that the
/// payload does not meet: `aps.mutable-content` is 1, and `aps.alert` has something to show.
struct LaunchDecision {
  std::vector<std::string> unmetConditions;
  bool starts() const { return unmetConditions.empty(); }
};
LaunchDecision launchDecision(const Dictionary& payload);

/// Returns the content that the system makes of a payload before any extension sees it. A value of
/// another kind than the system expects counts as absent. A localization key wins over the plain
/// string; "%@" and "%1$@" in its localized string are replaced by the arguments.
UNNotificationContent contentForPayload(const Dictionary& payload, NSBundle& bundle);

}  // namespace orvanta
