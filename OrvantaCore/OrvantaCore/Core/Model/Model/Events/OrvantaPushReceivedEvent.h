#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"

namespace orvanta {

/// The device received a notification.
class OrvantaPushReceivedEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaPushReceivedEvent, OrvantaEvent, "o:prd")

  ORVANTA_PROPERTY("fs", copy, String, pushId, setPushId)

  ORVANTA_EVENT_INITIALIZER_FROM(OrvantaPushObject, initWithPushObject, eventWithPushObject, pushId)
};

}  // namespace orvanta
