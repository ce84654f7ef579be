#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// Changes the user's notification preference for a category.
class OrvantaSetUserCategoryRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaSetUserCategoryRequest, OrvantaRequestPathTypeSetUserCategory,
                  OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("ctid", assign, std::int64_t, categoryId, setCategoryId)
  ORVANTA_PROPERTY("cte", assign, bool, categoryEnabled, setCategoryEnabled)

  ORVANTA_INITIALIZER(initWithUserCategoryId, init, categoryId, categoryEnabled)
};

}  // namespace orvanta
