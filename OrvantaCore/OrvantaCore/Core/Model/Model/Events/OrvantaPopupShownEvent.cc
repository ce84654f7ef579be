#include "orvanta/Model/Events/OrvantaPopupShownEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaPopupShownEvent)

}  // namespace orvanta
