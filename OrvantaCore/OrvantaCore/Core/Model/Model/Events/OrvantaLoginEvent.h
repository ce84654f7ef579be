#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user logged in.
class OrvantaLoginEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaLoginEvent, OrvantaEvent, "o:cl")

  ORVANTA_PROPERTY("uid", copy, String, userId, setUserId)

  ORVANTA_EVENT_INITIALIZER(initWithUserId, eventWithUserId, userId)
};

}  // namespace orvanta
