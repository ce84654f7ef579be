#include "orvanta/Model/Push/OrvantaPushCarouselObject.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaPushCarouselObject)

}  // namespace orvanta
