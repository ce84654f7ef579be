#include "orvanta/Model/Requests/OrvantaEmailSubscribeRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaEmailSubscribeRequest)

}  // namespace orvanta
