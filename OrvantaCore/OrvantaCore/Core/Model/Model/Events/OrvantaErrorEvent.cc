#include "Events/OrvantaErrorEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaErrorEvent)

}  // namespace orvanta
