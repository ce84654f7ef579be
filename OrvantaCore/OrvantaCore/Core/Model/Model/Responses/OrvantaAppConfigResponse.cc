#include "orvanta/Model/Responses/OrvantaAppConfigResponse.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaAppConfigResponse)

}  // namespace orvanta
