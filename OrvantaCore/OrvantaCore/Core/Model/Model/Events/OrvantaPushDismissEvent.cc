#include "orvanta/Model/Events/OrvantaPushDismissEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaPushDismissEvent)

}  // namespace orvanta
