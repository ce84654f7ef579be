#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Requests/OrvantaCouponFilter.h"
#include "orvanta/Model/Responses/OrvantaFetchCouponResponse.h"

namespace orvanta {

/// Fetches a page of the user's coupons.
class OrvantaFetchCouponRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchCouponRequest, OrvantaRequestPathTypeFetchCoupon,
                  OrvantaFetchCouponResponse)

  ORVANTA_FILTER(OrvantaCouponFilter)
};

}  // namespace orvanta
