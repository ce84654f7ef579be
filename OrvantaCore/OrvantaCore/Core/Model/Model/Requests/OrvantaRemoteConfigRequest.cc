#include "orvanta/Model/Requests/OrvantaRemoteConfigRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaRemoteConfigRequest)

}  // namespace orvanta
