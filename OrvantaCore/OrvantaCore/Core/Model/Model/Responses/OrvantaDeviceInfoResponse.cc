#include "orvanta/Model/Responses/OrvantaDeviceInfoResponse.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaDeviceInfoResponse)

}  // namespace orvanta
