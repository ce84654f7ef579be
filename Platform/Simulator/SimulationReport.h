#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "orvanta/Platform/Platform.h"
#include "orvanta/Platform/UserNotifications.h"
#include "orvanta/Simulator/Event.h"
#include "orvanta/Simulator/RemoteNotification.h"
#include "orvanta/Simulator/SimulatedIntents.h"

namespace orvanta {

/// One call of the content handler.
struct Delivery {
  enum class By : std::uint8_t { pipeline, expiry };

  int request;  // from 1
  double time;  // seconds since the first request
  By by;
  bool ignored;                                  // the system takes only a request's first delivery
  std::optional<UNNotificationContent> content;  // as it was at the call; nothing for null
};

/// What the user sees of one request.
struct PresentedNotification {
  enum class From : std::uint8_t { original, delivery };

  int request;  // from 1
  From from;
  UNNotificationContent content;
  std::vector<Ref<UNNotificationAction>> buttons;  // of the content's category, if registered
  std::size_t eventsEnd = 0;  // how many events came before the delivery that counted, or in all
};

/// Everything that a payload led to.
struct SimulationReport {
  LaunchDecision launch;
  OperatingSystemVersion os;
  std::vector<Delivery> deliveries;
  std::vector<PresentedNotification> presented;  // one per request
  /// All registered categories after the last write; nothing when nothing was written.
  std::optional<UNNotificationCategorySet> categories;
  std::vector<Donation> donations;
  std::vector<Event> events;
};

/// Returns why what a stage should have added is missing: its first failure before the delivery
/// that counted, null for none. An error page has no type that could be attached; then the download
/// with its HTTP status is the reason.
const Event* firstFailure(const SimulationReport& report, const PresentedNotification& presented,
                          Stage stage);

}  // namespace orvanta
