#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The device crossed a geofence. The application defines the values of `type`.
class OrvantaGeofenceEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaGeofenceEvent, OrvantaEvent, "o:gu")

  ORVANTA_PROPERTY("ea", copy, String, identifier, setIdentifier)
  ORVANTA_PROPERTY("fy", assign, std::uint64_t, type, setType)

  ORVANTA_EVENT_INITIALIZER(initWithIdentifier, eventWithIdentifier, identifier, type)
  std::int64_t priority() const override { return 1; }
};

}  // namespace orvanta
