#include "orvanta/Model/Commerce/OrvantaContentRateEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaContentRateEvent)

}  // namespace orvanta
