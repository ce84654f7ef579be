#include "orvanta/Model/Events/OrvantaPushReceivedEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaPushReceivedEvent)

}  // namespace orvanta
