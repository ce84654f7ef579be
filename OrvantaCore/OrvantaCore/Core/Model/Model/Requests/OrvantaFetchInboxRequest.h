#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Requests/OrvantaInboxFilter.h"
#include "orvanta/Model/Responses/OrvantaInboxResponse.h"

namespace orvanta {

/// Fetches a page of the inbox.
class OrvantaFetchInboxRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchInboxRequest, OrvantaRequestPathTypeFetchInbox, OrvantaInboxResponse)

  ORVANTA_FILTER(OrvantaInboxFilter)
};

}  // namespace orvanta
