#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Which coupons are asked for.
class OrvantaCouponFilter : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaCouponFilter, OrvantaBaseModel)

  /// The first is 0.
  ORVANTA_PROPERTY("page", assign, std::int32_t, page, setPage)
  ORVANTA_PROPERTY("max", assign, std::int32_t, max, setMax)
};

}  // namespace orvanta
