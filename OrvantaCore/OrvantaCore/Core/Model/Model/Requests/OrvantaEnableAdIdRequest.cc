#include "Requests/OrvantaEnableAdIdRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaEnableAdIdRequest)

}  // namespace orvanta
