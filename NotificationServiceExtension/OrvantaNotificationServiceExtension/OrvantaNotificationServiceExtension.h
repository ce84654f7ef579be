#pragma once

#include <memory>
#include <optional>

#include "orvanta/Foundation/Url.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"
#include "orvanta/Platform/NSError.h"
#include "orvanta/Platform/NSURLSession.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta {

/// Enriches one incoming notification: registers the buttons that its payload asks for, attaches
/// its media, and turns it into a communication notification. Whatever goes wrong on the way, the
/// content handler gets the best content there is, and nothing is thrown.
///
/// The handler is not guarded against a second call: after an expiry a step that was still pending
/// delivers once more, and so does a communication notification whose content cannot be updated.
/// Each pending step keeps the extension alive, so it is held by shared_ptr. Steps run one after
/// the other on whatever queues the platform calls back on.
class OrvantaNotificationServiceExtension final
    : public UNNotificationServiceExtension,
      public std::enable_shared_from_this<OrvantaNotificationServiceExtension> {
 public:
  void didReceiveNotificationRequest(const UNNotificationRequest& request,
                                     UNContentHandler contentHandler) override;
  /// Delivers the content as far as it has come. Before any request there is nothing to deliver.
  void serviceExtensionTimeWillExpire() override;

  /// The steps after the buttons: media, then the communication notification, then the handler.
  /// Without a push object (nil) the content is delivered as it is.
  void updateNotificationContent(const UNContentHandler& contentHandler,
                                 const Ref<OrvantaPushObject>& object);

  /// Downloads the media that the payload of the best attempt names, moves it into the caches
  /// folder under the name of the download's temporary file, and makes it the content's only
  /// attachment. Completes asynchronously, on the session's queue; the content is unchanged after
  /// an error. Without the platform's services it completes at once with NSURLErrorDomain -1002.
  void downloadAndSetMediaImageForNotificationContent(
      const std::shared_ptr<UNMutableNotificationContent>& content,
      ErrorCompletion completionHandler);

  /// Donates an interaction in which the content's title is the sender, with the payload's icon as
  /// picture, and the subtitle, if there is one, the group. The content handler gets the content
  /// that the platform makes of it; the content itself, at once, when there is no such picture, the
  /// system is older than iOS 15.0, or the platform does without images or Intents. A failing
  /// donation completes with its error instead; a failing update completes with its error and then
  /// calls the content handler with no content.
  void setNotificationIntentForNotificationContent(
      const std::shared_ptr<UNMutableNotificationContent>& content, UNContentHandler contentHandler,
      ErrorCompletion completionHandler);

  /// The last of the caches folders; none when the platform has no files.
  static std::optional<Url> cacheURL();

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
  /// Moves a finished download into the caches folder and attaches it.
  Ref<NSError> attach(const Url& location, const Ref<NSURLResponse>& response,
                      UNMutableNotificationContent& content) const;

  UNContentHandler contentHandler_;
  std::shared_ptr<UNMutableNotificationContent> bestAttemptContent_;
  std::weak_ptr<UNUserNotificationCenter> notificationCenter_;
};

}  // namespace orvanta
