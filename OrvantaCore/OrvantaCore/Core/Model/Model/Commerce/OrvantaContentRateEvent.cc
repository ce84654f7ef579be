#include "Commerce/OrvantaContentRateEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaContentRateEvent)

}  // namespace orvanta
