#include "orvanta/Model/Requests/OrvantaDisablePushRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaDisablePushRequest)

}  // namespace orvanta
