#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"

#include <utility>

#include "orvanta/Foundation/Exception.h"
#include "orvanta/Model/Mapping/OrvantaLogger.h"
#include "orvanta/Model/Notifications/OrvantaUserNotificationCategory.h"
#include "orvanta/NotificationService/NotificationHelper.h"
#include "orvanta/NotificationService/RequestedEnrichments.h"
#include "orvanta/Platform/Platform.h"

// The order of the steps. MediaAttachment.cc and CommunicationIntent.cc implement them.

namespace orvanta {

/// Makes the category of the buttons that a payload asks for; nil when it asks for none.
static Ref<OrvantaUserNotificationCategory> interactiveCategory(const OrvantaPushObject& object) {
  const RequestedEnrichments enrichments = requestedEnrichments(object);
  if (!enrichments.category) return nullptr;
  Array actions;
  for (const Value& element : *object.interactiveActions().get()) {
    if (element.as<OrvantaUserNotificationAction>() != nullptr) actions.append(element);
  }
  auto category = make<OrvantaUserNotificationCategory>();
  category->setActions(actions);
  category->setIdentifier(*enrichments.category);
  return category;
}

Ref<OrvantaPushObject> OrvantaNotificationServiceExtension::pushObject() const {
  if (bestAttemptContent_ == nullptr) return nullptr;  // no request yet
  try {
    return make<OrvantaPushObject>(bestAttemptContent_->userInfo);
  } catch (const Exception&) {
    return nullptr;  // "aps" or "_ov" is not a dictionary
  }
}

void OrvantaNotificationServiceExtension::didReceiveNotificationRequest(
    const UNNotificationRequest& request, UNContentHandler contentHandler) {
  contentHandler_ = contentHandler;
  bestAttemptContent_ = std::make_shared<UNMutableNotificationContent>(*request.content);
  notificationCenter_ = Platform::current().currentNotificationCenter();
  const Ref<OrvantaPushObject> object = pushObject();
  const auto category = object ? interactiveCategory(*object) : nullptr;
  if (!category) {
    updateNotificationContent(contentHandler, object);
    return;
  }
  NotificationHelper::requestNotificationAuthorizationForCategories(
      NotificationHelper::setForCategories(Array{Value(category)}), notificationCenter_.lock(),
      [self = shared_from_this(), contentHandler = std::move(contentHandler),
       object](bool /*registered*/) { self->updateNotificationContent(contentHandler, object); });
}

void OrvantaNotificationServiceExtension::updateNotificationContent(
    const UNContentHandler& contentHandler, const Ref<OrvantaPushObject>& object) {
  const std::shared_ptr<UNMutableNotificationContent> content = bestAttemptContent_;
  const auto enrichments = object ? requestedEnrichments(*object) : RequestedEnrichments();
  const bool hasMedia = enrichments.media != nullptr;
  const bool hasIcon = enrichments.senderIcon.has_value();

  // Reads bestAttemptContent_ again, not `content`: a later request on this instance replaces it.
  const auto applyIntent = [self = shared_from_this(), contentHandler, content, hasIcon] {
    if (!hasIcon) {
      contentHandler(content);
      return;
    }
    self->setNotificationIntentForNotificationContent(
        self->bestAttemptContent_, contentHandler,
        [contentHandler, content](const Ref<NSError>& /*error*/) { contentHandler(content); });
  };
  if (!hasMedia) {
    applyIntent();
    return;
  }
  downloadAndSetMediaImageForNotificationContent(
      bestAttemptContent_, [applyIntent](const Ref<NSError>& /*error*/) { applyIntent(); });
}

void OrvantaNotificationServiceExtension::serviceExtensionTimeWillExpire() {
  constexpr LogSite kSite{"-[OrvantaNotificationServiceExtension serviceExtensionTimeWillExpire]",
                          "OrvantaNotificationServiceExtension", 222};
  logDebug(kSite, [] { return "Timeout!!"; });
  // Copies the handler: calling it may start another request, which replaces the member.
  const UNContentHandler handler = contentHandler_;
  if (handler) handler(bestAttemptContent_);
}

}  // namespace orvanta
