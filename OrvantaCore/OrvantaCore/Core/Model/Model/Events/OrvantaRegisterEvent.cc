#include "orvanta/Model/Events/OrvantaRegisterEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaRegisterEvent)

}  // namespace orvanta
