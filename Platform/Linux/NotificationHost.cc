#include "Platform/Linux/NotificationHost.h"

#include <algorithm>

#include "Platform/Linux/EventLoop.h"

namespace orvanta {

HostReport NotificationHost::run(const Dictionary& payload) {
  HostReport report;
  report.launch = launchVerdict(payload);
  const auto original = std::make_shared<const UNNotificationContent>(contentForPayload(payload));
  report.shown.push_back({ShownNotification::From::original, *original});

  EventLoop loop;
  bool expiring = false;
  const auto handler = [&](const std::shared_ptr<const UNNotificationContent>& content) {
    const bool first = report.deliveries.empty();
    report.deliveries.push_back({.request = 1,
                                 .time = loop.now(),
                                 .by = expiring ? Delivery::By::expiry : Delivery::By::pipeline,
                                 .ignored = !first,
                                 .content = {}});
    if (content == nullptr) return;
    report.deliveries.back().content = *content;
    if (first) report.shown.back() = {ShownNotification::From::delivery, *content};
  };

  const auto extension = makeExtension_();
  loop.schedule(0.0, [&] {
    extension->didReceiveNotificationRequest({.identifier = "1", .content = original}, handler);
  });
  loop.schedule(
      options_.timeBudget,
      [&] {
        if (!report.deliveries.empty()) return;
        expiring = true;
        extension->serviceExtensionTimeWillExpire();
        expiring = false;
      },
      /*urgent=*/true);
  loop.run();
  return report;
}

}  // namespace orvanta
