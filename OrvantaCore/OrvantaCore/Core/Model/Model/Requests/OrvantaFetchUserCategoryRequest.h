#pragma once

#include "Requests/OrvantaBaseRequest.h"
#include "Responses/OrvantaFetchUserCategoryResponse.h"

namespace orvanta {

/// Asks for the preferences of the user.
class OrvantaFetchUserCategoryRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchUserCategoryRequest, OrvantaRequestPathTypeFetchUserCategory,
                  OrvantaFetchUserCategoryResponse)
};

}  // namespace orvanta
