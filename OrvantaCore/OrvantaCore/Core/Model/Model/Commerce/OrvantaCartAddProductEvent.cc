#include "orvanta/Model/Commerce/OrvantaCartAddProductEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaCartAddProductEvent)

}  // namespace orvanta
