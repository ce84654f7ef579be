#include "orvanta/Model/Commerce/OrvantaOrderCancelEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaOrderCancelEvent)

}  // namespace orvanta
