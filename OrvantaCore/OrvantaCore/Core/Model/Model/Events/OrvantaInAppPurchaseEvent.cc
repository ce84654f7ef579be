#include "orvanta/Model/Events/OrvantaInAppPurchaseEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaInAppPurchaseEvent)

}  // namespace orvanta
