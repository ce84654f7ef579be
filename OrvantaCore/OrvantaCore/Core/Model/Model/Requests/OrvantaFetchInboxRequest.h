#pragma once

#include "Requests/OrvantaBaseRequest.h"
#include "Requests/OrvantaInboxFilter.h"
#include "Responses/OrvantaInboxResponse.h"

namespace orvanta {

/// Asks for a page of the inbox.
class OrvantaFetchInboxRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchInboxRequest, OrvantaRequestPathTypeFetchInbox, OrvantaInboxResponse)

  ORVANTA_FILTER(OrvantaInboxFilter)
};

}  // namespace orvanta
