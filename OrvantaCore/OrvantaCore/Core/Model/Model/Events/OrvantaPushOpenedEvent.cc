#include "orvanta/Model/Events/OrvantaPushOpenedEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaPushOpenedEvent)

bool OrvantaPushOpenedEvent::initWithPushObject(const OrvantaPushObject* pushObject) {
  if (pushObject == nullptr) return initInternal();
  if (!initWithPushId(pushObject->pushId(), pushObject->pushInstanceId(),
                      pushObject->interactiveActionIdentifier())) {
    return false;
  }
  inputText_ = pushObject->inputText();
  return true;
}

Ref<OrvantaPushOpenedEvent> OrvantaPushOpenedEvent::eventWithPushObject(
    const OrvantaPushObject* pushObject) {
  return make<Self>(&Self::initWithPushObject, pushObject);
}

bool OrvantaPushOpenedEvent::initWithPushId(PropertyValue<String> pushId,
                                            PropertyValue<String> pushInstanceId,
                                            PropertyValue<String> interactiveActionIdentifier) {
  if (!initInternal()) return false;
  pushId_ = std::move(pushId);
  pushInstanceId_ = std::move(pushInstanceId);
  actionIdentifier_ = std::move(interactiveActionIdentifier);
  return true;
}

Ref<OrvantaPushOpenedEvent> OrvantaPushOpenedEvent::eventWithPushId(
    PropertyValue<String> pushId, PropertyValue<String> pushInstanceId,
    PropertyValue<String> interactiveActionId) {
  return make<Self>(&Self::initWithPushId, std::move(pushId), std::move(pushInstanceId),
                    std::move(interactiveActionId));
}

}  // namespace orvanta
