#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Requests/OrvantaInboxCountFilter.h"
#include "orvanta/Model/Responses/OrvantaInboxCountResponse.h"

namespace orvanta {

/// Asks how many messages the inbox holds.
class OrvantaFetchInboxCountRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaFetchInboxCountRequest, OrvantaRequestPathTypeFetchInboxCount,
                  OrvantaInboxCountResponse)

  ORVANTA_FILTER(OrvantaInboxCountFilter)
};

}  // namespace orvanta
