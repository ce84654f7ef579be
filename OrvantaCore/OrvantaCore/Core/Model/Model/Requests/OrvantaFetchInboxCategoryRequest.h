#pragma once

#include "Requests/OrvantaBaseRequest.h"
#include "Requests/OrvantaInboxCategoryFilter.h"
#include "Responses/OrvantaInboxCategoryResponse.h"

namespace orvanta {

/// Asks for the categories of the inbox.
class OrvantaFetchInboxCategoryRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchInboxCategoryRequest, OrvantaRequestPathTypeFetchInboxCategory,
                  OrvantaInboxCategoryResponse)

  ORVANTA_FILTER(OrvantaInboxCategoryFilter)
};

}  // namespace orvanta
