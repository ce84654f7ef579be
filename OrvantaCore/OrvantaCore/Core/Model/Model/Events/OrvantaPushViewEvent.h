#pragma once

#include "Events/OrvantaEvent.h"
#include "Push/OrvantaPushObject.h"

namespace orvanta {

/// A notification was looked at.
class OrvantaPushViewEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaPushViewEvent, OrvantaEvent, "o:pv")

  ORVANTA_PROPERTY("fs", copy, String, pushId, setPushId)

  ORVANTA_EVENT_INITIALISER_FROM(OrvantaPushObject, initWithPushObject, eventWithPushObject, pushId)
};

}  // namespace orvanta
