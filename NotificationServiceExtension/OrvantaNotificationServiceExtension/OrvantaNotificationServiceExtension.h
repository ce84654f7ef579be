#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "Foundation/Value.h"
#include "Notifications/OrvantaUserNotificationCategory.h"
#include "Platform/Interface/UserNotifications.h"
#include "Push/OrvantaPushObject.h"

namespace orvanta {

/// The buttons that a payload asks for; nil when it names no category, or no action. Elements that
/// are no actions are passed over.
Ref<OrvantaUserNotificationCategory> interactiveCategory(const OrvantaPushObject& object);

/// The name of the sender's picture, if the payload asks for one; it lives as long as the object.
std::optional<std::string_view> pushIcon(const OrvantaPushObject& object);

/// Enriches one incoming notification: registers the buttons that its payload asks for, attaches
/// its media, and turns it into a communication notification. Whatever goes wrong on the way, the
/// content handler gets the best content there is, and nothing is thrown.
///
/// The handler is not guarded against a second call: after an expiry a step that was still pending
/// delivers once more. Each pending step keeps the extension alive, so it is held by shared_ptr.
/// Steps run one after the other on whatever queues the platform calls back on.
class OrvantaNotificationServiceExtension final
    : public UNNotificationServiceExtension,
      public std::enable_shared_from_this<OrvantaNotificationServiceExtension> {
 public:
  /// Takes an error object, nil for none. Called once.
  using ErrorCompletion = std::function<void(const Value& error)>;

  void didReceiveNotificationRequest(const UNNotificationRequest& request,
                                     UNContentHandler contentHandler) override;
  /// Delivers the content as far as it has come. Before any request there is nothing to deliver.
  void serviceExtensionTimeWillExpire() override;

  /// The steps after the buttons: media, then the communication notification, then the handler.
  /// Without a push object (nil) the content is delivered as it is.
  void updateNotificationContent(const UNContentHandler& contentHandler,
                                 const Ref<OrvantaPushObject>& object);
  void downloadAndSetMediaImageForNotificationContent(
      const std::shared_ptr<UNMutableNotificationContent>& content,
      const ErrorCompletion& completionHandler);
  void setNotificationIntentForNotificationContent(
      const std::shared_ptr<UNMutableNotificationContent>& content,
      const UNContentHandler& contentHandler, const ErrorCompletion& completionHandler);

  /// The system's handler of the request at hand.
  const UNContentHandler& contentHandler() const { return contentHandler_; }
  void setContentHandler(UNContentHandler handler) { contentHandler_ = std::move(handler); }
  /// The copy of the request's content on which every change lands.
  const std::shared_ptr<UNMutableNotificationContent>& bestAttemptContent() const {
    return bestAttemptContent_;
  }
  void setBestAttemptContent(std::shared_ptr<UNMutableNotificationContent> content) {
    bestAttemptContent_ = std::move(content);
  }
  std::shared_ptr<UNUserNotificationCenter> notificationCenter() const {
    return notificationCenter_.lock();
  }
  void setNotificationCenter(const std::shared_ptr<UNUserNotificationCenter>& center) {
    notificationCenter_ = center;
  }

 private:
  /// The payload of the best attempt as a push object; nil when it cannot be one.
  Ref<OrvantaPushObject> pushObject() const;
  /// Registers the payload's buttons; the content is touched only once that has completed.
  void registerCategory(const Ref<OrvantaUserNotificationCategory>& category,
                        const std::function<void()>& completion);

  UNContentHandler contentHandler_;
  std::shared_ptr<UNMutableNotificationContent> bestAttemptContent_;
  std::weak_ptr<UNUserNotificationCenter> notificationCenter_;
};

}  // namespace orvanta
