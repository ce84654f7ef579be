#include "orvanta/Model/Push/OrvantaPushStyle.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaPushStyle)

}  // namespace orvanta
