#include "orvanta/Model/Events/OrvantaShowViewEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaShowViewEvent)

}  // namespace orvanta
