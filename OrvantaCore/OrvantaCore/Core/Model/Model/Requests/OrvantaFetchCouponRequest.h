#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Requests/OrvantaCouponFilter.h"
#include "orvanta/Model/Responses/OrvantaFetchCouponResponse.h"

namespace orvanta {

/// Asks for coupons.
class OrvantaFetchCouponRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchCouponRequest, OrvantaRequestPathTypeFetchCoupon,
                  OrvantaFetchCouponResponse)

  ORVANTA_FILTER(OrvantaCouponFilter)
};

}  // namespace orvanta
