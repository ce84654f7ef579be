#include "Events/OrvantaLoginEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaLoginEvent)

}  // namespace orvanta
