#include "Requests/OrvantaAppConfigRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaAppConfigRequest)

}  // namespace orvanta
