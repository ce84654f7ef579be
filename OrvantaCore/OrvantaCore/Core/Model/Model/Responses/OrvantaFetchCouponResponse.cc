#include "orvanta/Model/Responses/OrvantaFetchCouponResponse.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaFetchCouponResponse)

}  // namespace orvanta
