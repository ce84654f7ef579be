#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Selects a page of coupons.
class OrvantaCouponFilter : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaCouponFilter, OrvantaBaseModel)

  /// Counted from 0.
  ORVANTA_PROPERTY("page", assign, std::int32_t, page, setPage)
  ORVANTA_PROPERTY("max", assign, std::int32_t, max, setMax)
};

}  // namespace orvanta
