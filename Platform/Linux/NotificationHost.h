#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Platform/Interface/UserNotifications.h"
#include "Platform/Linux/RemoteNotification.h"

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
};

/// Everything that came of a payload.
struct HostReport {
  LaunchVerdict launch;
  std::vector<Delivery> deliveries;
  std::vector<ShownNotification> shown;  // one per request
};

/// Does what the system does with a remote notification: makes its content, creates the extension,
/// hands over the request, gives it a budget of time and takes what it delivers. Time is simulated.
/// The extension runs whatever the launch verdict says.
class NotificationHost {
 public:
  struct Options {
    double timeBudget = 30.0;  // seconds from the request to serviceExtensionTimeWillExpire
  };
  using ExtensionFactory = std::function<std::shared_ptr<UNNotificationServiceExtension>()>;

  explicit NotificationHost(ExtensionFactory makeExtension) : NotificationHost(makeExtension, {}) {}
  NotificationHost(ExtensionFactory makeExtension, Options options)
      : makeExtension_(std::move(makeExtension)), options_(options) {}

  HostReport run(const Dictionary& payload);

 private:
  ExtensionFactory makeExtension_;
  Options options_;
};

}  // namespace orvanta
