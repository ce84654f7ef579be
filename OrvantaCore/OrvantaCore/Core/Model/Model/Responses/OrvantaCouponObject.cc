#include "orvanta/Model/Responses/OrvantaCouponObject.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaCouponObject)

}  // namespace orvanta
