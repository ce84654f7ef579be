#pragma once

#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"
#include "orvanta/Model/Responses/OrvantaCouponObject.h"

namespace orvanta {

/// Reply to OrvantaFetchCouponRequest.
class OrvantaFetchCouponResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaFetchCouponResponse, OrvantaBaseResponseModel)

  ORVANTA_READONLY("cps", strong, Array, coupons, OrvantaCouponObject)
};

}  // namespace orvanta
