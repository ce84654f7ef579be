#include "orvanta/Model/Requests/OrvantaDeviceInfoRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaDeviceInfoRequest)

}  // namespace orvanta
