#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Responses/OrvantaFetchUserCategoryResponse.h"

namespace orvanta {

/// Fetches the user's notification preferences, by category.
class OrvantaFetchUserCategoryRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchUserCategoryRequest, OrvantaRequestPathTypeFetchUserCategory,
                  OrvantaFetchUserCategoryResponse)
};

}  // namespace orvanta
