#include "orvanta/Model/Events/OrvantaViewActionTestEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaViewActionTestEvent)

}  // namespace orvanta
