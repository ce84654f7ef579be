#include "orvanta/Model/Requests/OrvantaAppConfigRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaAppConfigRequest)

}  // namespace orvanta
