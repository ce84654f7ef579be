#include "orvanta/Model/Commerce/OrvantaCartViewEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaCartViewEvent)

}  // namespace orvanta
