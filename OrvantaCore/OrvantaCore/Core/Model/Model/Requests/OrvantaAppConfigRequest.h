#pragma once

#include "Requests/OrvantaBaseRequest.h"
#include "Responses/OrvantaAppConfigResponse.h"

namespace orvanta {

/// Asks for the configuration.
class OrvantaAppConfigRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaAppConfigRequest, OrvantaRequestPathTypeAppConfig,
                  OrvantaAppConfigResponse)
};

}  // namespace orvanta
