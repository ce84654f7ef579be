#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The location permission changed. `authorizationStatus` is the platform's CLAuthorizationStatus.
class OrvantaLocationAuthorizationEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaLocationAuthorizationEvent, OrvantaEvent, "o:la")

  ORVANTA_PROPERTY("fe", assign, std::int32_t, authorizationStatus, setAuthorizationStatus)

  ORVANTA_EVENT_INITIALIZER(initWithLocationAuthorizationStatus, eventWithAuthorizationStatus,
                            authorizationStatus)
};

}  // namespace orvanta
