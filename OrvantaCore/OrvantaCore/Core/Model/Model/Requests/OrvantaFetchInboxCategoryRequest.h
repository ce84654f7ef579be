#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Requests/OrvantaInboxCategoryFilter.h"
#include "orvanta/Model/Responses/OrvantaInboxCategoryResponse.h"

namespace orvanta {

/// Fetches the categories of the inbox.
class OrvantaFetchInboxCategoryRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchInboxCategoryRequest, OrvantaRequestPathTypeFetchInboxCategory,
                  OrvantaInboxCategoryResponse)

  ORVANTA_FILTER(OrvantaInboxCategoryFilter)
};

}  // namespace orvanta
