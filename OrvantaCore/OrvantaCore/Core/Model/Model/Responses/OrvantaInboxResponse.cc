#include "orvanta/Model/Responses/OrvantaInboxResponse.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaInboxResponse)

}  // namespace orvanta
