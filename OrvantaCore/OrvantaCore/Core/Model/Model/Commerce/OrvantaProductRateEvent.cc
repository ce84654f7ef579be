#include "orvanta/Model/Commerce/OrvantaProductRateEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaProductRateEvent)

}  // namespace orvanta
