#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/Linux/HostServices.h"
#include "orvanta/Linux/HostURLSession.h"
#include "orvanta/Linux/RemoteNotification.h"
#include "orvanta/Linux/Scenario.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta {

/// One call of the content handler.
struct Delivery {
  enum class By { pipeline, expiry };

  int request;  // from 1
  double time;  // seconds since the first request came in
  By by;
  bool ignored;                                  // the system takes a request's first delivery only
  std::optional<UNNotificationContent> content;  // as it was at the call; none when it was null
};

/// What the user sees of one request.
struct ShownNotification {
  enum class From { original, delivery };

  From from;
  UNNotificationContent content;
  std::vector<Ref<UNNotificationAction>> buttons;  // of the content's category, if it is registered
  /// The steps from the request to the delivery that counted, or to the end: first, one past last.
  std::pair<std::size_t, std::size_t> steps{};
};

/// Everything that came of a payload.
struct HostReport {
  LaunchVerdict launch;
  std::vector<Delivery> deliveries;
  std::vector<ShownNotification> shown;  // one per request
  /// Everything that is registered after the last write; none when nothing was written.
  std::optional<UNNotificationCategorySet> categories;
  std::vector<Donation> donations;
  std::vector<Timeline::Step> steps;
};

/// What the host is to be like.
struct HostOptions {
  OperatingSystemVersion os{17, 0, 0};
  std::filesystem::path resources;    // of the bundle; empty for none
  std::filesystem::path stateFolder;  // caches, categories, donations; must exist
  std::vector<UrlMapping> urlMappings;
  Scenario scenario;
  double timeBudget = 30.0;  // seconds from a request to serviceExtensionTimeWillExpire
  bool realTime = false;
  TransferLimits limits;
  TransferProgress progress;
  SystemLog* log = nullptr;
};

/// Does what the system does with a remote notification: makes its content, creates the extension,
/// hands over the request, gives it a budget of time and takes what it delivers. Everything runs on
/// one serial queue; time is simulated, a real transfer adds what it took. The extension runs
/// whatever the launch verdict says. Throws std::runtime_error for a folder, strings file or state
/// that cannot be used.
class NotificationHost {
 public:
  using ExtensionFactory = std::function<std::shared_ptr<UNNotificationServiceExtension>()>;

  NotificationHost(ExtensionFactory makeExtension, HostOptions options)
      : makeExtension_(std::move(makeExtension)), options_(std::move(options)) {}

  HostReport run(const Dictionary& payload);

 private:
  ExtensionFactory makeExtension_;
  HostOptions options_;
};

}  // namespace orvanta
