#include "Requests/OrvantaFetchCouponRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaFetchCouponRequest)

}  // namespace orvanta
