#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/Platform/Intents.h"
#include "orvanta/Platform/MobileCoreServices.h"
#include "orvanta/Platform/NSBundle.h"
#include "orvanta/Platform/NSFileManager.h"
#include "orvanta/Platform/NSURLSession.h"
#include "orvanta/Platform/Platform.h"
#include "orvanta/Platform/UIKit.h"

namespace orvanta::testing {

/// A platform in memory, which replaces the platform of its thread during its lifetime. Its
/// services keep their callbacks pending until the test runs them.
class FakePlatform final : public Platform,
                           private Clock,
                           private SystemLog,
                           private NSURLSession,
                           private NSFileManager,
                           private TypeIdentifiers,
                           private UNNotificationAttachmentFactory,
                           private Images,
                           private Intents,
                           private NSBundle {
 public:
  class Center final : public UNUserNotificationCenter {
   public:
    explicit Center(FakePlatform& platform) : platform_(platform) {}
    void getNotificationCategories(CategoriesCompletion completion) override;
    void setNotificationCategories(const UNNotificationCategorySet& categories) override;

    UNNotificationCategorySet registered;
    std::vector<UNNotificationCategorySet> written;

   private:
    FakePlatform& platform_;
  };

  /// The result of every download: the error if there is one, otherwise the file. The response has
  /// the requested URL.
  struct Download {
    std::string name = "CFNetworkDownload_abc123.tmp";
    std::uint64_t bytes = 1000;
    NSURLResponse::Parts response{Url::fileURLWithPath("/"), "image/jpeg", 200, {}};
    bool hasResponse = true;
    Ref<NSError> error;
  };

  // ---- Pending callbacks ----

  std::size_t waiting() const { return pending_.size(); }
  /// Runs one of the pending callbacks, which are in the order of their calls.
  void run(std::size_t index);
  void runNext() { run(0); }
  /// Runs until none is pending.
  void runAll() {
    while (!pending_.empty()) runNext();
  }

  // ---- Resources and faults ----

  /// The missing services: "log", "clock", "center", "session", "files",
  /// "types", "attachments", "images", "intents", "bundle".
  std::set<std::string, std::less<>> absent;
  OperatingSystemVersion version{17, 0, 0};
  std::shared_ptr<Center> center = std::make_shared<Center>(*this);
  std::map<std::string, std::uint64_t> files;  // sizes by path
  std::vector<std::string> cachesFolders{"/library/", "/caches/"};
  std::string lockedFolder;  // prefix of paths that cannot be written
  Download download;
  std::set<std::string> pictures{"star.png"};
  bool encodes = true;
  std::map<std::string, std::string, std::less<>> texts;
  Ref<NSError> attachmentError;
  Ref<NSError> donationError;
  Ref<NSError> updateError;

  // ---- Recorded calls ----

  /// "read", "write", "download URL", "move NAME", "attach TYPE", "image NAME", "encode QUALITY",
  /// "donate", "update", and entries of the test.
  std::vector<std::string> calls;
  std::vector<INInteraction> donated;
  std::vector<std::string> log;

  SystemLog* systemLog() override { return present<SystemLog>("log"); }
  Clock* clock() override { return present<Clock>("clock"); }
  std::shared_ptr<UNUserNotificationCenter> currentNotificationCenter() override {
    return absent.contains("center") ? nullptr : center;
  }
  NSURLSession* sharedSession() override { return present<NSURLSession>("session"); }
  NSFileManager* defaultManager() override { return present<NSFileManager>("files"); }
  TypeIdentifiers* typeIdentifiers() override { return present<TypeIdentifiers>("types"); }
  UNNotificationAttachmentFactory* attachments() override {
    return present<UNNotificationAttachmentFactory>("attachments");
  }
  Images* images() override { return present<Images>("images"); }
  Intents* intents() override { return present<Intents>("intents"); }
  NSBundle* mainBundle() override { return present<NSBundle>("bundle"); }
  OperatingSystemVersion operatingSystemVersion() override { return version; }

 private:
  template <class Service>
  Service* present(std::string_view name) {
    return absent.contains(name) ? nullptr : this;
  }
  void wait(std::function<void()> callback) { pending_.push_back(std::move(callback)); }

  std::int64_t wallNanoseconds() override { return 0; }
  std::int64_t monotonicNanoseconds() override { return 0; }
  void write(std::string_view entry) noexcept override {
    const std::lock_guard guard(logLock_);
    log.emplace_back(entry);
  }
  void downloadTaskWithURL(const std::optional<Url>& url,
                           DownloadCompletion completionHandler) override;
  std::vector<Url> URLsForCachesDirectory() override {
    std::vector<Url> urls;
    for (const std::string& folder : cachesFolders) urls.push_back(Url::fileURLWithPath(folder));
    return urls;
  }
  Ref<NSError> moveItemAtURL(const Url& source, const Url& destination) override;
  std::optional<std::string> preferredIdentifierForMIMEType(
      const std::optional<std::string>& type) override;
  UNNotificationAttachmentFactory::Result attachmentWithIdentifier(
      const std::string& identifier, const Url& url,
      const std::optional<std::string>& typeHint) override;
  Ref<UIImage> imageNamed(std::string_view name) override;
  std::optional<std::string> JPEGRepresentation(const Ref<UIImage>& image,
                                                double compressionQuality) override;
  void donateInteraction(const INInteraction& interaction, ErrorCompletion completion) override;
  Intents::Update contentByUpdating(const UNNotificationContent& content,
                                    const INSendMessageIntent& provider) override;
  std::string localizedStringForKey(std::string_view key) override {
    const auto entry = texts.find(key);
    return entry == texts.end() ? std::string(key) : entry->second;
  }

  std::deque<std::function<void()>> pending_;
  std::mutex logLock_;
  PlatformOverride override_{*this};
};

}  // namespace orvanta::testing
