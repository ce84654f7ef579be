#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// A coupon of the user.
class OrvantaCouponObject : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaCouponObject, OrvantaBaseModel)

  ORVANTA_READONLY("cid", copy, String, couponId)
  ORVANTA_READONLY("name", copy, String, name)
  ORVANTA_READONLY("code", copy, String, code)
  ORVANTA_READONLY("ed", strong, Date, expireDate)
  ORVANTA_READONLY("ad", strong, Date, assignDate)
};

}  // namespace orvanta
