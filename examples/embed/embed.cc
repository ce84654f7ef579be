// Runs the notification service on a payload with a platform of its own, and prints what the user
// sees and the events that the application would send: embed PAYLOAD

#include <deque>
#include <fstream>
#include <iostream>
#include <sstream>

#include "orvanta/Foundation/Exception.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Model/Events/OrvantaPushOpenedEvent.h"
#include "orvanta/Model/Events/OrvantaPushReceivedEvent.h"
#include "orvanta/Model/Requests/EventBatchQueue.h"
#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"
#include "orvanta/Platform/MobileCoreServices.h"
#include "orvanta/Platform/NSFileManager.h"
#include "orvanta/Platform/Platform.h"

namespace {

using namespace orvanta;

/// A device without a disk: every download succeeds at once, and its file has no contents. It has
/// no Images and no Intents, so there are no communication notifications.
class EmbeddedPlatform final : public Platform,
                               SystemLog,
                               NSURLSession,
                               NSFileManager,
                               TypeIdentifiers,
                               UNNotificationAttachmentFactory {
 public:
  /// Runs the callbacks that the services have queued, until there are none.
  void runAll() {
    for (; !queue_.empty(); queue_.pop_front()) queue_.front()();
  }
  const UNNotificationCategorySet& categories() const { return center_->categories; }

  SystemLog* systemLog() override { return this; }
  std::shared_ptr<UNUserNotificationCenter> currentNotificationCenter() override { return center_; }
  NSURLSession* sharedSession() override { return this; }
  NSFileManager* defaultManager() override { return this; }
  TypeIdentifiers* typeIdentifiers() override { return this; }
  UNNotificationAttachmentFactory* attachments() override { return this; }

 private:
  using Queue = std::deque<std::function<void()>>;

  struct Center final : UNUserNotificationCenter {
    explicit Center(Queue& callbacks) : queue(callbacks) {}
    void getNotificationCategories(CategoriesCompletion completion) override {
      queue.emplace_back([this, completion = std::move(completion)] { completion(categories); });
    }
    void setNotificationCategories(const UNNotificationCategorySet& all) override {
      categories = all;
    }
    Queue& queue;
    UNNotificationCategorySet categories;
  };

  void write(std::string_view entry) noexcept override { std::cerr << entry << '\n'; }
  void downloadTaskWithURL(const std::optional<Url>& url,
                           DownloadCompletion completionHandler) override {
    queue_.emplace_back([url, completion = std::move(completionHandler)] {
      if (!url) {
        return completion(std::nullopt, nullptr,
                          NSError::errorWithDomain(kNSURLErrorDomain, kNSURLErrorUnsupportedURL));
      }
      completion(Url::fileURLWithPath("/tmp/download-1.tmp"),
                 NSURLResponse::responseWithParts({*url, "image/jpeg", 200, {}}), nullptr);
    });
  }
  std::vector<Url> URLsForCachesDirectory() override { return {Url::fileURLWithPath("/caches/")}; }
  Ref<NSError> moveItemAtURL(const Url&, const Url&) override { return nullptr; }
  std::optional<std::string> preferredIdentifierForMIMEType(
      const std::optional<std::string>& type) override {
    return type ? std::optional("public.jpeg") : std::nullopt;
  }
  Result attachmentWithIdentifier(const std::string& identifier, const Url& url,
                                  const std::optional<std::string>& typeHint) override {
    return {UNNotificationAttachment::attachmentWithParts(
                {identifier, url, typeHint, "public.jpeg", "Image", 0}),
            nullptr};
  }

  Queue queue_;
  const std::shared_ptr<Center> center_ = std::make_shared<Center>(queue_);
};

void show(const UNNotificationContent& content, const UNNotificationCategorySet& categories) {
  std::cout << "title:      " << content.title.value_or("-") << '\n'
            << "body:       " << content.body.value_or("-") << '\n';
  for (const auto& attachment : content.attachments)
    std::cout << "attachment: " << attachment->parts().url.path() << '\n';
  for (const UNNotificationCategory& category : categories) {
    for (const auto& action : category.actions)
      std::cout << "button:     " << action->title() << " (" << category.identifier << ")\n";
  }
}

/// Stores each event as a request, as an application does while it is offline, and prints them
/// merged into one.
void send(const std::vector<Ref<OrvantaEvent>>& events) {
  EventBatchQueue queue;
  for (const auto& event : events) {
    event->setCreationDate(Date::fromMilliseconds(1729155605705));
    auto request = make<OrvantaEventRequest>();
    request->editEvents().append(Value(event));
    queue.add(std::move(request));  // completes no batch: there are two events
  }
  std::string body;
  writeJSON(queue.finish()->requestSpec()->HTTPBody, body, {.pretty = true});
  std::cout << "batch:      " << body << '\n';
}

int fail(int code, std::string_view message) {
  std::cerr << "embed: " << message << '\n';
  return code;
}
}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return fail(2, "usage: embed PAYLOAD");
  std::ifstream file(argv[1]);
  std::ostringstream text;
  text << file.rdbuf();
  const Value value = parseJSON(text.str());
  const Dictionary* payload = value.dictionary();
  if (payload == nullptr) return fail(3, "the payload is not a JSON object that can be read");

  static EmbeddedPlatform platform;
  Platform::setCurrent(&platform);
  Ref<OrvantaPushObject> push;
  try {
    push = make<OrvantaPushObject>(*payload);
  } catch (const Exception&) {  // "aps" or "_ov" is not a dictionary
  }
  if (!push) return fail(1, "the payload is not a notification's");

  UNNotificationContent content;  // the system makes it of the payload
  content.title = push->alert().get()->title().get();
  content.body = push->alert().get()->body().get();
  content.userInfo = *payload;
  const auto extension = std::make_shared<OrvantaNotificationServiceExtension>();
  extension->didReceiveNotificationRequest(
      {"request-1", std::make_shared<UNNotificationContent>(content)},
      [&](const auto& presented) { show(*presented, platform.categories()); });
  platform.runAll();
  send({OrvantaPushReceivedEvent::eventWithPushObject(push.get()),
        OrvantaPushOpenedEvent::eventWithPushObject(push.get())});
}
