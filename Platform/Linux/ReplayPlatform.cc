#include "orvanta/Linux/ReplayPlatform.h"

namespace orvanta {

namespace {

using Queue = std::deque<std::function<void()>>;

class ForgetfulCenter final : public UNUserNotificationCenter {
 public:
  explicit ForgetfulCenter(Queue& queue) : queue_(queue) {}
  void getNotificationCategories(CategoriesCompletion completion) override {
    queue_.emplace_back([completion = std::move(completion)] { completion({}); });
  }
  void setNotificationCategories(const UNNotificationCategorySet& /*categories*/) override {}

 private:
  Queue& queue_;
};

constexpr std::string_view kPictureType = "public.jpeg";

class Picture final : public UIImage {};

}  // namespace

struct ReplayPlatform::Services final : NSURLSession,
                                        NSFileManager,
                                        TypeIdentifiers,
                                        UNNotificationAttachmentFactory,
                                        Images,
                                        Intents,
                                        NSBundle {
  Queue queue;
  std::shared_ptr<ForgetfulCenter> center = std::make_shared<ForgetfulCenter>(queue);
  const Url downloaded = Url::fileURLWithPath("/tmp/CFNetworkDownload_000001.tmp");
  const Url caches = Url::fileURLWithPath("/Library/Caches/");
  const Ref<UIImage> picture = Ref<Picture>::adopt(new Picture);

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
    return std::string(kPictureType);
  }
  UNNotificationAttachmentFactory::Result attachmentWithIdentifier(
      const std::string& identifier, const Url& url,
      const std::optional<std::string>& typeHint) override {
    return {UNNotificationAttachment::attachmentWithParts({.identifier = identifier,
                                                           .url = url,
                                                           .typeHint = typeHint,
                                                           .type = std::string(kPictureType),
                                                           .family = "Image",
                                                           .bytes = 1}),
            nullptr};
  }
  Ref<UIImage> imageNamed(std::string_view /*name*/) override { return picture; }
  std::optional<std::string> JPEGRepresentation(const Ref<UIImage>& /*image*/,
                                                double /*compressionQuality*/) override {
    return "\xFF\xD8\xFF";
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

ReplayPlatform::ReplayPlatform() : services_(std::make_unique<Services>()) {}
ReplayPlatform::~ReplayPlatform() = default;

void ReplayPlatform::runAll() {
  Queue& queue = services_->queue;
  while (!queue.empty()) {
    const auto callback = std::move(queue.front());
    queue.pop_front();
    callback();
  }
}

std::shared_ptr<UNUserNotificationCenter> ReplayPlatform::currentNotificationCenter() {
  return services_->center;
}
NSURLSession* ReplayPlatform::sharedSession() { return services_.get(); }
NSFileManager* ReplayPlatform::defaultManager() { return services_.get(); }
TypeIdentifiers* ReplayPlatform::typeIdentifiers() { return services_.get(); }
UNNotificationAttachmentFactory* ReplayPlatform::attachments() { return services_.get(); }
Images* ReplayPlatform::images() { return services_.get(); }
Intents* ReplayPlatform::intents() { return services_.get(); }
NSBundle* ReplayPlatform::mainBundle() { return services_.get(); }

}  // namespace orvanta
