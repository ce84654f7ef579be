#include "orvanta/Model/Events/OrvantaLocationAuthorizationEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaLocationAuthorizationEvent)

}  // namespace orvanta
