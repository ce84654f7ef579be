#include "OrvantaNotificationServiceExtension/OrvantaNotificationServiceExtension.h"

#include <utility>

#include "Foundation/Exception.h"
#include "Mapping/OrvantaLogger.h"
#include "Platform/Interface/Platform.h"

namespace orvanta {

Ref<OrvantaUserNotificationCategory> interactiveCategory(const OrvantaPushObject& object) {
  const auto identifier = object.interactiveCategoryIdentifier().get();
  const Array* given = object.interactiveActions().get();
  if (!identifier || given == nullptr) return nullptr;
  Array actions;
  for (const Value& action : *given) {
    if (action.as<OrvantaUserNotificationAction>() != nullptr) actions.append(action);
  }
  if (actions.empty()) return nullptr;
  auto category = make<OrvantaUserNotificationCategory>();
  category->setActions(actions);
  category->setIdentifier(*identifier);
  return category;
}

std::optional<std::string_view> pushIcon(const OrvantaPushObject& object) {
  const auto* style = object.pushStyle().get();
  return style != nullptr ? style->pushIcon().get() : std::nullopt;
}

Ref<OrvantaPushObject> OrvantaNotificationServiceExtension::pushObject() const {
  try {
    return make<OrvantaPushObject>(bestAttemptContent_->userInfo);
  } catch (const Exception&) {
    return nullptr;  // "aps" or "_ov" is no dictionary
  }
}

void OrvantaNotificationServiceExtension::didReceiveNotificationRequest(
    const UNNotificationRequest& request, UNContentHandler contentHandler) {
  contentHandler_ = contentHandler;
  bestAttemptContent_ = std::make_shared<UNMutableNotificationContent>(*request.content);
  notificationCenter_ = Platform::current().currentNotificationCenter();
  const Ref<OrvantaPushObject> object = pushObject();
  const auto update = [self = shared_from_this(), contentHandler = std::move(contentHandler),
                       object] { self->updateNotificationContent(contentHandler, object); };
  if (const auto category = object ? interactiveCategory(*object) : nullptr) {
    registerCategory(category, update);
  } else {
    update();
  }
}

void OrvantaNotificationServiceExtension::registerCategory(
    const Ref<OrvantaUserNotificationCategory>& /*category*/,
    const std::function<void()>& completion) {
  completion();
}

void OrvantaNotificationServiceExtension::updateNotificationContent(
    const UNContentHandler& contentHandler, const Ref<OrvantaPushObject>& object) {
  const std::shared_ptr<UNMutableNotificationContent> content = bestAttemptContent_;
  const bool hasMedia = object && object->mediaAttachmentURL().get() != nullptr;
  const bool hasIcon = object && pushIcon(*object);

  const auto applyIntent = [self = shared_from_this(), contentHandler, content, hasIcon] {
    if (!hasIcon) {
      contentHandler(content);
      return;
    }
    self->setNotificationIntentForNotificationContent(
        self->bestAttemptContent_, contentHandler,
        [contentHandler, content](const Value& /*error*/) { contentHandler(content); });
  };
  if (!hasMedia) {
    applyIntent();
    return;
  }
  downloadAndSetMediaImageForNotificationContent(
      bestAttemptContent_, [applyIntent](const Value& /*error*/) { applyIntent(); });
}

void OrvantaNotificationServiceExtension::downloadAndSetMediaImageForNotificationContent(
    const std::shared_ptr<UNMutableNotificationContent>& /*content*/,
    const ErrorCompletion& completionHandler) {
  completionHandler(Value());
}

void OrvantaNotificationServiceExtension::setNotificationIntentForNotificationContent(
    const std::shared_ptr<UNMutableNotificationContent>& content,
    const UNContentHandler& contentHandler, const ErrorCompletion& /*completionHandler*/) {
  contentHandler(content);
}

void OrvantaNotificationServiceExtension::serviceExtensionTimeWillExpire() {
  constexpr LogSite kSite{"-[OrvantaNotificationServiceExtension serviceExtensionTimeWillExpire]",
                          "OrvantaNotificationServiceExtension", 222};
  logDebug(kSite, [] { return "Timeout!!"; });
  if (contentHandler_) contentHandler_(bestAttemptContent_);
}

}  // namespace orvanta
