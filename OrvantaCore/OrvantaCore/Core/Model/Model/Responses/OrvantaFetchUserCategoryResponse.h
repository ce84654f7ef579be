#pragma once

#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"
#include "orvanta/Model/User/OrvantaUserCategoryPreference.h"

namespace orvanta {

/// Reply to OrvantaFetchUserCategoryRequest.
class OrvantaFetchUserCategoryResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaFetchUserCategoryResponse, OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("cts", strong, Array, categories, setCategories, OrvantaUserCategoryPreference)
};

}  // namespace orvanta
