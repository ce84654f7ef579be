#include "orvanta/Model/Requests/OrvantaUpdateDeviceRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaUpdateDeviceRequest)

}  // namespace orvanta
