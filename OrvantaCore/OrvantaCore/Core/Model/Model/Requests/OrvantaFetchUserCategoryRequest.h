#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Responses/OrvantaFetchUserCategoryResponse.h"

namespace orvanta {

/// Asks for the preferences of the user.
class OrvantaFetchUserCategoryRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchUserCategoryRequest, OrvantaRequestPathTypeFetchUserCategory,
                  OrvantaFetchUserCategoryResponse)
};

}  // namespace orvanta
