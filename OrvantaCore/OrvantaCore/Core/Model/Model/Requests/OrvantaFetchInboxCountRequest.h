#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Requests/OrvantaInboxCountFilter.h"
#include "orvanta/Model/Responses/OrvantaInboxCountResponse.h"

namespace orvanta {

/// Fetches the number of messages in the inbox, by status.
class OrvantaFetchInboxCountRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchInboxCountRequest, OrvantaRequestPathTypeFetchInboxCount,
                  OrvantaInboxCountResponse)

  ORVANTA_FILTER(OrvantaInboxCountFilter)
};

}  // namespace orvanta
