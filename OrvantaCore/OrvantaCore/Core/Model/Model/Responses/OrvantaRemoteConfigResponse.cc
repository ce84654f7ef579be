#include "orvanta/Model/Responses/OrvantaRemoteConfigResponse.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaRemoteConfigResponse)

}  // namespace orvanta
