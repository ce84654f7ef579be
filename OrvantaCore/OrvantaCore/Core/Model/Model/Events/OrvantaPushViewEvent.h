#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"

namespace orvanta {

/// The user viewed a notification.
class OrvantaPushViewEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaPushViewEvent, OrvantaEvent, "o:pv")

  ORVANTA_PROPERTY("fs", copy, String, pushId, setPushId)

  ORVANTA_EVENT_INITIALIZER_FROM(OrvantaPushObject, initWithPushObject, eventWithPushObject, pushId)
};

}  // namespace orvanta
