#include "orvanta/Model/Events/OrvantaBatteryLevelEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaBatteryLevelEvent)

}  // namespace orvanta
