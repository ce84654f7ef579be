#include "orvanta/Model/Commerce/OrvantaProductViewEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaProductViewEvent)

}  // namespace orvanta
