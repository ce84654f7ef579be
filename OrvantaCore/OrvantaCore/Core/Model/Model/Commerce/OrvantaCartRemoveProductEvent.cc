#include "orvanta/Model/Commerce/OrvantaCartRemoveProductEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaCartRemoveProductEvent)

}  // namespace orvanta
