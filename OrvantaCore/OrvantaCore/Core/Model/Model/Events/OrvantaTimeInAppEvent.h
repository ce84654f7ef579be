#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user left the application.
class OrvantaTimeInAppEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaTimeInAppEvent, OrvantaEvent, "o:tia")

  ORVANTA_PROPERTY("ft", assign, double, timeInAppSeconds, setTimeInAppSeconds)

  ORVANTA_EVENT_INITIALIZER(initWithTimeInAppSeconds, eventWithTimeInAppSeconds, timeInAppSeconds)
  std::int64_t priority() const override { return 1; }
};

}  // namespace orvanta
