#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"
#include "orvanta/Platform/CoreLocation.h"

namespace orvanta {

/// The device was located. Where, stands in `locationString`, which the recorder fills.
class OrvantaLocationUpdateEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaLocationUpdateEvent, OrvantaEvent, "o:lu")

  /// Metres.
  ORVANTA_PROPERTY("fw", assign, double, accuracy, setAccuracy)
  ORVANTA_PROPERTY("fu", strong, Date, locationDate, setLocationDate)

  /// Takes the fix's horizontal accuracy and time; its coordinates are not kept.
  bool initWithLocation(const CLLocation& location);
  static Ref<Self> eventWithLocation(const CLLocation& location);
};

}  // namespace orvanta
