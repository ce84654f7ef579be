#include "Responses/OrvantaDeviceInfoResponse.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaDeviceInfoResponse)

}  // namespace orvanta
