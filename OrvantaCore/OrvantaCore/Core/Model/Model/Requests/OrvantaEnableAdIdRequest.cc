#include "orvanta/Model/Requests/OrvantaEnableAdIdRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaEnableAdIdRequest)

}  // namespace orvanta
