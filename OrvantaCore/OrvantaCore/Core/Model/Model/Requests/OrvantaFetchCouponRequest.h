#pragma once

#include "Requests/OrvantaBaseRequest.h"
#include "Requests/OrvantaCouponFilter.h"
#include "Responses/OrvantaFetchCouponResponse.h"

namespace orvanta {

/// Asks for coupons.
class OrvantaFetchCouponRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchCouponRequest, OrvantaRequestPathTypeFetchCoupon,
                  OrvantaFetchCouponResponse)

  ORVANTA_FILTER(OrvantaCouponFilter)
};

}  // namespace orvanta
