#include "orvanta/Model/Commerce/OrvantaWishListEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaWishListEvent)

}  // namespace orvanta
