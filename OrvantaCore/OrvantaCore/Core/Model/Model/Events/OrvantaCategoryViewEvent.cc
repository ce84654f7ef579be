#include "orvanta/Model/Events/OrvantaCategoryViewEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaCategoryViewEvent)

}  // namespace orvanta
