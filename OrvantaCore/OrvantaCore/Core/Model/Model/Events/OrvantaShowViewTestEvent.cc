#include "orvanta/Model/Events/OrvantaShowViewTestEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaShowViewTestEvent)

}  // namespace orvanta
