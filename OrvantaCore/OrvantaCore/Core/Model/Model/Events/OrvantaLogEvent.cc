#include "orvanta/Model/Events/OrvantaLogEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaLogEvent)

}  // namespace orvanta
