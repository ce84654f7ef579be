#include "orvanta/Model/Configuration/OrvantaTrackableScreenInfo.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaTrackableScreenInfo)

}  // namespace orvanta
