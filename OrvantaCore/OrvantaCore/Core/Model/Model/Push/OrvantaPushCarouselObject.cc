#include "Push/OrvantaPushCarouselObject.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaPushCarouselObject)

}  // namespace orvanta
