#include "orvanta/Model/Responses/OrvantaInitSessionResponse.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaInitSessionResponse)

}  // namespace orvanta
