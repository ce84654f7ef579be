#include "orvanta/Model/Events/OrvantaLocationUpdateEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaLocationUpdateEvent)

bool OrvantaLocationUpdateEvent::initWithLocation(const CLLocation& location) {
  if (!initInternal()) return false;
  accuracy_ = location.horizontalAccuracy;
  locationDate_ = location.timestamp;
  return true;
}

Ref<OrvantaLocationUpdateEvent> OrvantaLocationUpdateEvent::eventWithLocation(
    const CLLocation& location) {
  return make<Self>(&Self::initWithLocation, location);
}

}  // namespace orvanta
