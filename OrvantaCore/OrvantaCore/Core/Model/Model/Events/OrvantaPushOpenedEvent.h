#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"

namespace orvanta {

/// The user opened a notification or tapped one of its buttons.
class OrvantaPushOpenedEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaPushOpenedEvent, OrvantaEvent, "o:po")

  ORVANTA_PROPERTY("fs", copy, String, pushId, setPushId)
  ORVANTA_PROPERTY("piid", copy, String, pushInstanceId, setPushInstanceId)
  ORVANTA_PROPERTY("ea", copy, String, actionIdentifier, setActionIdentifier)
  ORVANTA_PROPERTY("txt", copy, String, inputText, setInputText)

  /// Copies the identifiers, the identifier of the tapped button and the text that the user typed.
  bool initWithPushObject(const OrvantaPushObject* pushObject);
  static Ref<Self> eventWithPushObject(const OrvantaPushObject* pushObject);
  bool initWithPushId(PropertyValue<String> pushId, PropertyValue<String> pushInstanceId,
                      PropertyValue<String> interactiveActionIdentifier);
  static Ref<Self> eventWithPushId(PropertyValue<String> pushId,
                                   PropertyValue<String> pushInstanceId,
                                   PropertyValue<String> interactiveActionId);
  std::int64_t priority() const override { return 1; }
};

}  // namespace orvanta
