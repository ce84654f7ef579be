#include "orvanta/Model/Requests/OrvantaFetchCouponRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaFetchCouponRequest)

}  // namespace orvanta
