#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"
#include "orvanta/Platform/CoreLocation.h"

namespace orvanta {

/// A location fix. The coordinates are in `locationString`, set by the code that records the event.
class OrvantaLocationUpdateEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaLocationUpdateEvent, OrvantaEvent, "o:lu")

  /// Meters; negative if the coordinates are invalid.
  ORVANTA_PROPERTY("fw", assign, double, accuracy, setAccuracy)
  ORVANTA_PROPERTY("fu", strong, Date, locationDate, setLocationDate)

  /// Copies the horizontal accuracy and the time of the fix, not its coordinates.
  bool initWithLocation(const CLLocation& location);
  static Ref<Self> eventWithLocation(const CLLocation& location);
};

}  // namespace orvanta
