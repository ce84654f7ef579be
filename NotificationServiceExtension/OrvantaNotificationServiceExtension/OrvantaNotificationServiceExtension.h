#pragma once

#include <memory>
#include <optional>

#include "orvanta/Foundation/Url.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"
#include "orvanta/Platform/NSError.h"
#include "orvanta/Platform/NSURLSession.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta {

/// Enriches an incoming notification: registers the buttons in its payload, attaches its media, and
/// makes it a communication notification. A failed step is skipped: the content handler then
/// receives the content without it. Nothing is thrown.
///
/// The class is final. To add a step, wrap the extension and change the request on the way in or
/// the content on the way out:
///
///   class ShopExtension final : public UNNotificationServiceExtension {
///    public:
///     void didReceiveNotificationRequest(const UNNotificationRequest& request,
///                                        UNContentHandler contentHandler) override {
///       extension_->didReceiveNotificationRequest(
///           request, [handler = std::move(contentHandler)](const auto& content) {
///             if (content == nullptr) return handler(nullptr);  // a failed update, see below
///             auto grouped = std::make_shared<UNMutableNotificationContent>(*content);
///             grouped->threadIdentifier = "orders";
///             handler(std::move(grouped));
///           });
///     }
///     void serviceExtensionTimeWillExpire() override {
///       extension_->serviceExtensionTimeWillExpire();  // also ends in the handler above
///     }
///
///    private:
///     const std::shared_ptr<OrvantaNotificationServiceExtension> extension_ =
///         std::make_shared<OrvantaNotificationServiceExtension>();
///   };
///
/// Order of the steps; each waits for the one before:
/// 1. didReceiveNotificationRequest, on the caller's thread: reads the payload.
/// 2. Buttons, if the payload has a category and buttons: NotificationHelper. Completes on the
///    notification center's queue.
/// 3. Media, if the payload has a URL: downloadAndSetMediaImageForNotificationContent. Completes on
///    the session's queue.
/// 4. Sender, if the payload names an image: setNotificationIntentForNotificationContent. Completes
///    on the queue of Intents.
/// 5. The content handler, on the thread on which the last step completed.
///
/// The extension takes no lock: the platform runs its callbacks one after the other (Platform.h).
/// Hold it in a shared_ptr; pending steps keep it alive. The system calls
/// serviceExtensionTimeWillExpire if the handler was not called in time. Pending steps are not
/// canceled and call the handler again, as does a failed update of a communication notification.
/// The system ignores every call but the first.
class OrvantaNotificationServiceExtension final
    : public UNNotificationServiceExtension,
      public std::enable_shared_from_this<OrvantaNotificationServiceExtension> {
 public:
  void didReceiveNotificationRequest(const UNNotificationRequest& request,
                                     UNContentHandler contentHandler) override;
  /// Calls the handler with the content in its current state. Before the first request, only logs.
  void serviceExtensionTimeWillExpire() override;

  /// Runs the steps after the buttons: media, sender, handler. If `object` is nil, calls the
  /// handler with the unchanged content, before it returns.
  void updateNotificationContent(const UNContentHandler& contentHandler,
                                 const Ref<OrvantaPushObject>& object);

  /// Downloads the media named by the payload of bestAttemptContent, moves it to the caches folder
  /// under the name of the download's temporary file, and makes it the only attachment of
  /// `content`. Completes with nil, or with an error and `content` unchanged: the session's, the
  /// file manager's or the attachment factory's. Completes on the session's queue, or, without the
  /// platform's services, before it returns with NSURLErrorDomain -1002. Attachments are limited by
  /// the system to 10 MB per image, 5 MB per audio file and 50 MB per movie.
  void downloadAndSetMediaImageForNotificationContent(
      const std::shared_ptr<UNMutableNotificationContent>& content,
      ErrorCompletion completionHandler);

  /// Donates a message whose sender is the content's title, with the image named by the payload of
  /// bestAttemptContent, and whose group is the subtitle, if there is one. Then calls
  /// `contentHandler` with the platform's update of `content`, on the queue of Intents.
  /// - Image missing, system before iOS 15.0, or no Images or Intents: calls `contentHandler` with
  ///   `content` before it returns.
  /// - Donation failed: calls `completionHandler` with the error, and not `contentHandler`.
  /// - Update failed: calls `completionHandler` with the error, then `contentHandler` with nullptr.
  /// Does not call `completionHandler` on success.
  void setNotificationIntentForNotificationContent(
      const std::shared_ptr<UNMutableNotificationContent>& content, UNContentHandler contentHandler,
      ErrorCompletion completionHandler);

  /// Returns the last of the platform's caches folders; nullopt without a file manager.
  static std::optional<Url> cacheURL();

  /// The handler of the latest request.
  const UNContentHandler& contentHandler() const { return contentHandler_; }
  void setContentHandler(UNContentHandler handler) { contentHandler_ = std::move(handler); }
  /// The mutable copy of the latest request's content, which the steps change.
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
  /// Reads the payload of bestAttemptContent_; nil if it cannot be read.
  Ref<OrvantaPushObject> pushObject() const;
  /// Moves a finished download to the caches folder and attaches it. Returns nil for success.
  Ref<NSError> attach(const Url& location, const Ref<NSURLResponse>& response,
                      UNMutableNotificationContent& content) const;

  UNContentHandler contentHandler_;
  std::shared_ptr<UNMutableNotificationContent> bestAttemptContent_;
  std::weak_ptr<UNUserNotificationCenter> notificationCenter_;
};

}  // namespace orvanta
