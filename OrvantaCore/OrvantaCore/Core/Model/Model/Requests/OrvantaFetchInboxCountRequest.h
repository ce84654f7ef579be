#pragma once

#include "Requests/OrvantaBaseRequest.h"
#include "Requests/OrvantaInboxCountFilter.h"
#include "Responses/OrvantaInboxCountResponse.h"

namespace orvanta {

/// Asks how many messages the inbox holds.
class OrvantaFetchInboxCountRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchInboxCountRequest, OrvantaRequestPathTypeFetchInboxCount,
                  OrvantaInboxCountResponse)

  ORVANTA_FILTER(OrvantaInboxCountFilter)
};

}  // namespace orvanta
