#pragma once

#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"
#include "orvanta/Model/User/OrvantaUserCategoryPreference.h"

namespace orvanta {

/// The preferences of the user.
class OrvantaFetchUserCategoryResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaFetchUserCategoryResponse, OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("cts", strong, Array, categories, setCategories, OrvantaUserCategoryPreference)
};

}  // namespace orvanta
