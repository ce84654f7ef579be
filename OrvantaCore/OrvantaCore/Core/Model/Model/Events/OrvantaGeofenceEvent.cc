#include "orvanta/Model/Events/OrvantaGeofenceEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaGeofenceEvent)

}  // namespace orvanta
