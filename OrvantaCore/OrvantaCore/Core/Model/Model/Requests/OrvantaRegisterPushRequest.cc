#include "orvanta/Model/Requests/OrvantaRegisterPushRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaRegisterPushRequest)

}  // namespace orvanta
