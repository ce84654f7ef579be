#include "Commerce/OrvantaCartViewEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaCartViewEvent)

}  // namespace orvanta
