#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"

namespace orvanta {

/// The application showed the in-app message of a push.
class OrvantaPopupShownEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaPopupShownEvent, OrvantaEvent, "o:psw")

  ORVANTA_PROPERTY("fs", copy, String, pushId, setPushId)

  ORVANTA_EVENT_INITIALIZER_FROM(OrvantaPushObject, initWithPushObject, eventWithPushObject, pushId)
  std::int64_t priority() const override { return 1; }
};

}  // namespace orvanta
