#include "orvanta/Model/Events/OrvantaOpenAppEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaOpenAppEvent)

}  // namespace orvanta
