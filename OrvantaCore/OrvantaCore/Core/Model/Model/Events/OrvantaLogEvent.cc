#include "Events/OrvantaLogEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaLogEvent)

}  // namespace orvanta
