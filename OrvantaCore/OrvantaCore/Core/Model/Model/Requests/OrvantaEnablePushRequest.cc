#include "orvanta/Model/Requests/OrvantaEnablePushRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaEnablePushRequest)

}  // namespace orvanta
