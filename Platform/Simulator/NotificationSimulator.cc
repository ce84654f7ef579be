#include "orvanta/Simulator/NotificationSimulator.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "orvanta/Simulator/SimulatedPlatform.h"

namespace orvanta {

namespace {

/// One run: requests are received, the extension delivers or expires, and the report is finished.
class NotificationRun {
 public:
  NotificationRun(const NotificationSimulator::ExtensionFactory& makeExtension,
                  const HostServices& host, const SimulationOptions& options)
      : host_(host),
        options_(options),
        loop_(host.wait),
        log_(loop_),
        platform_(host, options.scenario, options.scenario.os.value_or(options.os), loop_, log_),
        override_(platform_),
        extension_(makeExtension()) {}

  SimulationReport run(const Dictionary& payload) {
    report_.launch = launchDecision(payload);
    report_.os = platform_.operatingSystemVersion();
    send(payload, 0.0);
    if (const auto& second = options_.scenario.second) send(second->payload, second->at);
    loop_.run();
    return finish();
  }

 private:
  void send(const Dictionary& payload, double at);
  void receive(int request, double expiry);
  void deliver(int request, const UNNotificationContent* content);
  void expire(int request);
  SimulationReport finish();

  UNNotificationContent originalContent(const Dictionary& payload);
  std::vector<Ref<UNNotificationAction>> buttonsFor(const UNNotificationContent& content) const;
  PresentedNotification& presented(int request) {
    return report_.presented[static_cast<std::size_t>(request) - 1];
  }
  bool isDelivered(int request) const {
    return std::any_of(report_.deliveries.begin(), report_.deliveries.end(),
                       [&](const Delivery& delivery) { return delivery.request == request; });
  }

  const HostServices& host_;
  const SimulationOptions& options_;
  EventLoop loop_;
  EventLog log_;
  SimulatedPlatform platform_;
  PlatformOverride override_;
  std::shared_ptr<UNNotificationServiceExtension> extension_;
  bool isExpiring_ = false;
  SimulationReport report_;
};

/// Makes the system's content of a payload and schedules its request.
void NotificationRun::send(const Dictionary& payload, double at) {
  const int request = static_cast<int>(report_.presented.size()) + 1;
  report_.presented.push_back({.request = request,
                               .from = PresentedNotification::From::original,
                               .content = originalContent(payload),
                               .buttons = {}});
  const double budgetEnd = at + options_.timeBudget;
  const double expiry =
      std::max(at, std::min(options_.scenario.expireAt.value_or(budgetEnd), budgetEnd));
  loop_.setRequest(request);
  loop_.schedule(at, [this, request, expiry] { receive(request, expiry); });
  loop_.setRequest(0);
}

void NotificationRun::receive(int request, double expiry) {
  // The expiry comes before whatever else is due at its time.
  loop_.schedule(
      expiry, [this, request] { expire(request); }, /*urgent=*/true);
  log_.add({.kind = EventKind::requestReceived});
  platform_.session().setExpiry(expiry);
  extension_->didReceiveNotificationRequest(
      {.identifier = std::to_string(request),
       .content = std::make_shared<const UNNotificationContent>(presented(request).content)},
      [this, request](const std::shared_ptr<const UNNotificationContent>& content) {
        deliver(request, content.get());
      });
}

void NotificationRun::deliver(int request, const UNNotificationContent* content) {
  const bool isFirst = !isDelivered(request);
  const Delivery& delivery = report_.deliveries.emplace_back(
      Delivery{.request = request,
               .time = loop_.now(),
               .by = isExpiring_ ? Delivery::By::expiry : Delivery::By::pipeline,
               .ignored = !isFirst,
               .content = content != nullptr ? std::optional(*content) : std::nullopt});
  log_.add({.kind = content != nullptr ? EventKind::delivered : EventKind::noneDelivered,
            .request = request,
            .subject = isExpiring_ ? "expiry" : "pipeline",
            .isIgnored = !isFirst});
  if (!isFirst || content == nullptr) return;
  PresentedNotification& notification = presented(request);
  notification.from = PresentedNotification::From::delivery;
  notification.content = *delivery.content;
  notification.eventsEnd = log_.events().size();
}

void NotificationRun::expire(int request) {
  if (isDelivered(request)) return;
  log_.add({.kind = EventKind::timeExpired});
  isExpiring_ = true;
  extension_->serviceExtensionTimeWillExpire();
  isExpiring_ = false;
}

SimulationReport NotificationRun::finish() {
  for (PresentedNotification& notification : report_.presented) {
    if (notification.from == PresentedNotification::From::original) {
      notification.eventsEnd = log_.events().size();
    }
    notification.buttons = buttonsFor(notification.content);
  }
  if (platform_.center().wasWritten()) report_.categories = platform_.center().categories();
  report_.donations = platform_.simulatedIntents().donations();
  for (const std::string& failure :
       {platform_.center().failure(), platform_.simulatedIntents().failure()}) {
    if (!failure.empty()) throw std::runtime_error(failure);
  }
  report_.events = log_.events();
  return std::move(report_);
}

/// The content of a request, with what the scenario changes.
UNNotificationContent NotificationRun::originalContent(const Dictionary& payload) {
  const Scenario& scenario = options_.scenario;
  UNNotificationContent content = contentForPayload(payload, *platform_.mainBundle());
  if (scenario.title) content.title = *scenario.title;
  if (scenario.subtitle) content.subtitle = *scenario.subtitle;
  if (scenario.body) content.body = *scenario.body;
  for (std::size_t i = 1; i <= scenario.attachments; ++i) {
    const std::string name = "present-" + std::to_string(i);
    content.attachments.push_back(
        UNNotificationAttachment::attachmentWithParts({.identifier = name,
                                                       .url = host_.files.url(name + ".png"),
                                                       .typeHint = std::nullopt,
                                                       .type = "public.png",
                                                       .family = "Image",
                                                       .bytes = 0}));
  }
  return content;
}

std::vector<Ref<UNNotificationAction>> NotificationRun::buttonsFor(
    const UNNotificationContent& content) const {
  std::vector<Ref<UNNotificationAction>> buttons;
  for (const UNNotificationCategory& category : platform_.center().categories()) {
    // Of several categories with one identifier the last one counts.
    if (category.identifier == content.categoryIdentifier) buttons = category.actions;
  }
  return buttons;
}

}  // namespace

SimulationReport NotificationSimulator::run(const Dictionary& payload) const {
  return NotificationRun(makeExtension_, host_, options_).run(payload);
}

const Event* firstFailure(const SimulationReport& report, const PresentedNotification& presented,
                          Stage stage) {
  const Event* errorPage = nullptr;
  for (std::size_t i = 0; i < presented.eventsEnd; ++i) {
    const Event& event = report.events[i];
    if (event.request != presented.request || stageOf(event.kind) != stage) continue;
    if (isErrorPage(event)) errorPage = &event;
    if (isFailure(event)) {
      return errorPage != nullptr && isUnknownType(event) ? errorPage : &event;
    }
  }
  return nullptr;
}

}  // namespace orvanta
