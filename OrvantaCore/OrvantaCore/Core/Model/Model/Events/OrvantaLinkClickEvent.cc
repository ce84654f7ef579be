#include "orvanta/Model/Events/OrvantaLinkClickEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaLinkClickEvent)

}  // namespace orvanta
