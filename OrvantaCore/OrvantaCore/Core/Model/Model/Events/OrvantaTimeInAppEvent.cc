#include "orvanta/Model/Events/OrvantaTimeInAppEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaTimeInAppEvent)

}  // namespace orvanta
