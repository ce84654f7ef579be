#include "orvanta/Simulator/InstantPlatform.h"

#include "orvanta/Simulator/ScenarioImages.h"

namespace orvanta {

namespace {

using Queue = std::deque<std::function<void()>>;

class StatelessNotificationCenter final : public UNUserNotificationCenter {
 public:
  explicit StatelessNotificationCenter(Queue& queue) : queue_(queue) {}
  void getNotificationCategories(CategoriesCompletion completion) override {
    queue_.emplace_back([completion = std::move(completion)] { completion({}); });
  }
  void setNotificationCategories(const UNNotificationCategorySet& /*categories*/) override {}

 private:
  Queue& queue_;
};

constexpr std::string_view kImageType = "public.jpeg";

}  // namespace

struct InstantPlatform::Services final : NSURLSession,
                                         NSFileManager,
                                         TypeIdentifiers,
                                         UNNotificationAttachmentFactory,
                                         Images,
                                         Intents,
                                         NSBundle {
  Queue queue;
  std::shared_ptr<StatelessNotificationCenter> center =
      std::make_shared<StatelessNotificationCenter>(queue);
  const Url downloaded = Url::fileURLWithPath("/tmp/CFNetworkDownload_000001.tmp");
  const Url caches = Url::fileURLWithPath("/Library/Caches/");
  const Ref<UIImage> image = Ref<GrayPixel>::adopt(new GrayPixel);

  void downloadTaskWithURL(const std::optional<Url>& url,
                           DownloadCompletion completionHandler) override {
    queue.emplace_back(
        [this, url = url.value_or(downloaded), completion = std::move(completionHandler)] {
          completion(downloaded, NSURLResponse::responseWithParts({url, "image/jpeg", 200, {}}),
                     nullptr);
        });
  }
  std::vector<Url> URLsForCachesDirectory() override { return {caches}; }
  Ref<NSError> moveItemAtURL(const Url& /*source*/, const Url& /*destination*/) override {
    return nullptr;
  }
  std::optional<std::string> preferredIdentifierForMIMEType(
      const std::optional<std::string>& /*type*/) override {
    return std::string(kImageType);
  }
  UNNotificationAttachmentFactory::Result attachmentWithIdentifier(
      const std::string& identifier, const Url& url,
      const std::optional<std::string>& typeHint) override {
    return {UNNotificationAttachment::attachmentWithParts({.identifier = identifier,
                                                           .url = url,
                                                           .typeHint = typeHint,
                                                           .type = std::string(kImageType),
                                                           .family = "Image",
                                                           .bytes = 1}),
            nullptr};
  }
  Ref<UIImage> imageNamed(std::string_view /*name*/) override { return image; }
  std::optional<std::string> JPEGRepresentation(const Ref<UIImage>& /*image*/,
                                                double /*compressionQuality*/) override {
    return grayPixelJPEG();
  }
  void donateInteraction(const INInteraction& /*interaction*/,
                         ErrorCompletion completion) override {
    queue.emplace_back([completion = std::move(completion)] { completion(nullptr); });
  }
  Intents::Update contentByUpdating(const UNNotificationContent& content,
                                    const INSendMessageIntent& provider) override {
    auto updated = std::make_shared<UNNotificationContent>(content);
    updated->communication.emplace().sender = provider.sender.personHandle.value;
    return {std::move(updated), nullptr};
  }
  std::string localizedStringForKey(std::string_view key) override { return std::string(key); }
};

InstantPlatform::InstantPlatform() : services_(std::make_unique<Services>()) {}
InstantPlatform::~InstantPlatform() = default;

void InstantPlatform::runAll() {
  Queue& queue = services_->queue;
  while (!queue.empty()) {
    const auto callback = std::move(queue.front());
    queue.pop_front();
    callback();
  }
}

std::shared_ptr<UNUserNotificationCenter> InstantPlatform::currentNotificationCenter() {
  return services_->center;
}
NSURLSession* InstantPlatform::sharedSession() { return services_.get(); }
NSFileManager* InstantPlatform::defaultManager() { return services_.get(); }
TypeIdentifiers* InstantPlatform::typeIdentifiers() { return services_.get(); }
UNNotificationAttachmentFactory* InstantPlatform::attachments() { return services_.get(); }
Images* InstantPlatform::images() { return services_.get(); }
Intents* InstantPlatform::intents() { return services_.get(); }
NSBundle* InstantPlatform::mainBundle() { return services_.get(); }

}  // namespace orvanta
