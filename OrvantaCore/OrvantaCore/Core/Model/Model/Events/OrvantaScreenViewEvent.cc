#include "orvanta/Model/Events/OrvantaScreenViewEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaScreenViewEvent)

}  // namespace orvanta
