#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user created an account.
class OrvantaRegisterEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaRegisterEvent, OrvantaEvent, "o:rg")

  ORVANTA_PROPERTY("uid", copy, String, userId, setUserId)

  ORVANTA_EVENT_INITIALIZER(initWithUserId, eventWithUserId, userId)
};

}  // namespace orvanta
