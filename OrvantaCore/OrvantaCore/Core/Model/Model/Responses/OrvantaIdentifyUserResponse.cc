#include "orvanta/Model/Responses/OrvantaIdentifyUserResponse.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaIdentifyUserResponse)

}  // namespace orvanta
