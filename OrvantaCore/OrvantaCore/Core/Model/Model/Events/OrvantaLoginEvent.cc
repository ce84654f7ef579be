#include "orvanta/Model/Events/OrvantaLoginEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaLoginEvent)

}  // namespace orvanta
