#include "orvanta/Model/Events/OrvantaPushViewEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaPushViewEvent)

}  // namespace orvanta
