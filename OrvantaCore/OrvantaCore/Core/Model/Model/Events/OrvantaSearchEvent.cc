#include "orvanta/Model/Events/OrvantaSearchEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaSearchEvent)

}  // namespace orvanta
