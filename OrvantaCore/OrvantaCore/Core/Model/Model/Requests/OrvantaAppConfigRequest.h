#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Responses/OrvantaAppConfigResponse.h"

namespace orvanta {

/// Fetches the application's configuration.
class OrvantaAppConfigRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaAppConfigRequest, OrvantaRequestPathTypeAppConfig,
                  OrvantaAppConfigResponse)
};

}  // namespace orvanta
