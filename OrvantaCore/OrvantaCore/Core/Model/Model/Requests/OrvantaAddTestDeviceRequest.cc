#include "orvanta/Model/Requests/OrvantaAddTestDeviceRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaAddTestDeviceRequest)

}  // namespace orvanta
