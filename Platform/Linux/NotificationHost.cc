#include "orvanta/Linux/NotificationHost.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "orvanta/Foundation/Description.h"
#include "orvanta/Linux/ClockAndLog.h"
#include "orvanta/Linux/Files.h"
#include "orvanta/Linux/HostBundle.h"
#include "orvanta/Linux/HostImages.h"
#include "orvanta/Linux/MediaTypes.h"

namespace orvanta {

namespace {

namespace fs = std::filesystem;

/// Pictures that say in the timeline what became of them.
class ToldImages final : public Images {
 public:
  ToldImages(Images& images, Timeline& timeline) : images_(images), timeline_(timeline) {}
  Ref<UIImage> imageNamed(std::string_view name) override {
    Ref<UIImage> image = images_.imageNamed(name);
    timeline_.add(image ? "the picture \"" + std::string(name) + "\" is found"
                        : "there is no picture \"" + std::string(name) +
                              "\" in the resources that can be decoded");
    return image;
  }
  std::optional<std::string> JPEGRepresentation(const Ref<UIImage>& image,
                                                double compressionQuality) override {
    auto data = images_.JPEGRepresentation(image, compressionQuality);
    if (!data) timeline_.add("the picture cannot be encoded");
    return data;
  }

 private:
  Images& images_;
  Timeline& timeline_;
};

/// Files and attachments, likewise.
class ToldFiles final : public NSFileManager, public UNNotificationAttachmentFactory {
 public:
  ToldFiles(const fs::path& cachesFolder, Timeline& timeline)
      : files_(cachesFolder), timeline_(timeline) {}
  std::vector<Url> URLsForCachesDirectory() override { return files_.URLsForCachesDirectory(); }
  Ref<NSError> moveItemAtURL(const Url& source, const Url& destination) override {
    Ref<NSError> error = files_.moveItemAtURL(source, destination);
    timeline_.add(error ? "it cannot be moved into the caches: " +
                              describe(error->localizedDescription())
                        : "it is moved into the caches");
    return error;
  }
  Result attachmentWithIdentifier(const std::string& identifier, const Url& url,
                                  const std::optional<std::string>& typeHint) override {
    Result result = attachments_.attachmentWithIdentifier(identifier, url, typeHint);
    timeline_.add(result.error ? "it cannot be attached as " + typeHint.value_or("no type") + ": " +
                                     describe(result.error->localizedDescription())
                               : "it is attached as " + result.attachment->parts().type);
    return result;
  }

 private:
  HostFileManager files_;
  HostAttachmentFactory attachments_;
  Timeline& timeline_;
};

/// The platform of one run.
class HostPlatform final : public Platform {
 public:
  HostPlatform(const HostOptions& options, EventLoop& loop, Timeline& timeline)
      : options_(options),
        scenario_(options.scenario),
        center_(std::make_shared<HostNotificationCenter>(loop, timeline, options.stateFolder,
                                                         scenario_.categoriesDelay)),
        session_(loop, timeline, sessionOptions(options)),
        files_(options.stateFolder / "Caches", timeline),
        bundle_(options.resources),
        images_(options.resources, {scenario_.images.begin(), scenario_.images.end()}),
        toldImages_(images_, timeline),
        intents_(loop, timeline, options.stateFolder,
                 {.donationFails = scenario_.donationFails,
                  .updateFails = scenario_.updateFails,
                  .donationDelay = scenario_.donationDelay}) {
    for (const std::string& identifier : scenario_.categories) {
      center_->addRegistered({identifier, {}});
    }
  }

  SystemLog* systemLog() override { return options_.log; }
  Clock* clock() override { return &clock_; }
  std::shared_ptr<UNUserNotificationCenter> currentNotificationCenter() override {
    if (!scenario_.centerGone) return center_;
    return nullptr;
  }
  NSURLSession* sharedSession() override { return &session_; }
  NSFileManager* defaultManager() override { return &files_; }
  TypeIdentifiers* typeIdentifiers() override { return &types_; }
  UNNotificationAttachmentFactory* attachments() override { return &files_; }
  Images* images() override { return &toldImages_; }
  Intents* intents() override { return &intents_; }
  NSBundle* mainBundle() override { return &bundle_; }
  OperatingSystemVersion operatingSystemVersion() override {
    return scenario_.os.value_or(options_.os);
  }

  HostNotificationCenter& center() { return *center_; }
  HostURLSession& session() { return session_; }
  const HostIntents& hostIntents() const { return intents_; }
  HostBundle& bundle() { return bundle_; }

 private:
  static HostURLSession::Options sessionOptions(const HostOptions& options) {
    const fs::path temporary = options.stateFolder / "tmp";
    fs::create_directories(temporary);
    return {.mappings = options.urlMappings,
            .answer = options.scenario.media,
            .limits = options.limits,
            .progress = options.progress,
            .temporaryFolder = temporary,
            .cachesFolder = options.stateFolder / "Caches"};
  }

  const HostOptions& options_;
  const Scenario& scenario_;
  SystemClock clock_;
  std::shared_ptr<HostNotificationCenter> center_;
  HostURLSession session_;
  ToldFiles files_;
  HostTypeIdentifiers types_;
  HostBundle bundle_;
  HostImages images_;
  ToldImages toldImages_;
  HostIntents intents_;
};

/// The content of a request, with what a scenario changes.
UNNotificationContent originalContent(const Dictionary& payload, const Scenario& scenario,
                                      NSBundle& bundle, const fs::path& stateFolder) {
  UNNotificationContent content = contentForPayload(payload, bundle);
  if (scenario.title) content.title = *scenario.title;
  if (scenario.subtitle) content.subtitle = *scenario.subtitle;
  if (scenario.body) content.body = *scenario.body;
  for (std::size_t i = 1; i <= scenario.attachments; ++i) {
    const std::string name = "present-" + std::to_string(i);
    content.attachments.push_back(UNNotificationAttachment::attachmentWithParts(
        {.identifier = name,
         .url = Url::fileURLWithPath((stateFolder / (name + ".png")).string()),
         .typeHint = std::nullopt,
         .type = "public.png",
         .family = "Image",
         .bytes = 0}));
  }
  return content;
}

std::vector<Ref<UNNotificationAction>> buttonsOf(const UNNotificationContent& content,
                                                 const UNNotificationCategorySet& categories) {
  std::vector<Ref<UNNotificationAction>> buttons;
  for (const UNNotificationCategory& category : categories) {
    // Of several with one identifier the last one counts.
    if (category.identifier == content.categoryIdentifier) buttons = category.actions;
  }
  return buttons;
}

}  // namespace

HostReport NotificationHost::run(const Dictionary& payload) {
  HostReport report;
  report.launch = launchVerdict(payload);

  EventLoop loop(options_.realTime);
  Timeline timeline(loop);
  HostPlatform platform(options_, loop, timeline);
  const PlatformOverride override(platform);

  bool expiring = false;
  const auto deliver = [&](int request,
                           const std::shared_ptr<const UNNotificationContent>& content) {
    const bool first = std::none_of(report.deliveries.begin(), report.deliveries.end(),
                                    [&](const Delivery& d) { return d.request == request; });
    report.deliveries.push_back({.request = request,
                                 .time = loop.now(),
                                 .by = expiring ? Delivery::By::expiry : Delivery::By::pipeline,
                                 .ignored = !first,
                                 .content = {}});
    timeline.add(std::string(content != nullptr ? "content" : "no content") +
                 " is delivered by the " + (expiring ? "expiry" : "pipeline") +
                 (first ? "" : ", which the system ignores"));
    if (content == nullptr) return;
    report.deliveries.back().content = *content;
    if (first) {
      ShownNotification& shown = report.shown[static_cast<std::size_t>(request) - 1];
      shown.from = ShownNotification::From::delivery;
      shown.steps.second = timeline.steps().size();
      shown.content = *content;
    }
  };

  const auto extension = makeExtension_();
  const auto start = [&](double at, const Dictionary& of) {
    report.shown.push_back(
        {ShownNotification::From::original,
         originalContent(of, options_.scenario, platform.bundle(), options_.stateFolder),
         {}});
    const int request = static_cast<int>(report.shown.size());
    const double expiry =
        std::max(at, std::min(options_.scenario.expireAt.value_or(at + options_.timeBudget),
                              at + options_.timeBudget));
    const auto expire = [&, request] {
      const bool isDelivered = std::any_of(report.deliveries.begin(), report.deliveries.end(),
                                           [&](const Delivery& d) { return d.request == request; });
      if (isDelivered) return;
      timeline.add("the time is over");
      expiring = true;
      extension->serviceExtensionTimeWillExpire();
      expiring = false;
    };
    loop.schedule(at, [&, request, expiry, expire] {
      report.shown[static_cast<std::size_t>(request) - 1].steps.first = timeline.steps().size();
      loop.schedule(expiry, expire, /*urgent=*/true);
      timeline.add(request == 1 ? "the extension gets the request"
                                : "the extension gets a second request");
      platform.session().setExpiry(expiry);
      const auto& content = report.shown[static_cast<std::size_t>(request) - 1].content;
      extension->didReceiveNotificationRequest(
          {.identifier = std::to_string(request),
           .content = std::make_shared<const UNNotificationContent>(content)},
          [&deliver, request](const std::shared_ptr<const UNNotificationContent>& delivered) {
            deliver(request, delivered);
          });
    });
  };
  start(0.0, payload);
  if (const auto& second = options_.scenario.second) start(second->at, second->payload);
  loop.run();

  for (ShownNotification& shown : report.shown) {
    if (shown.from == ShownNotification::From::original) {
      shown.steps.second = timeline.steps().size();
    }
    shown.buttons = buttonsOf(shown.content, platform.center().categories());
  }
  if (platform.center().wasWritten()) report.categories = platform.center().categories();
  report.donations = platform.hostIntents().donations();
  for (const std::string& failure :
       {platform.center().failure(), platform.hostIntents().failure()}) {
    if (!failure.empty()) throw std::runtime_error(failure);
  }
  report.steps = timeline.steps();
  return report;
}

}  // namespace orvanta
