#include "orvanta/Model/Requests/OrvantaDisableAdIdRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaDisableAdIdRequest)

}  // namespace orvanta
