#include "orvanta/Model/Configuration/OrvantaTrackableActionInfo.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaTrackableActionInfo)

}  // namespace orvanta
