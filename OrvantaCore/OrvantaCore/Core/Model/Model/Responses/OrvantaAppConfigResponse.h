#pragma once

#include "orvanta/Model/Configuration/OrvantaAppConfig.h"
#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

/// Reply to OrvantaAppConfigRequest.
class OrvantaAppConfigResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaAppConfigResponse, OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("cfg", strong, OrvantaAppConfig, appConfig, setAppConfig, OrvantaAppConfig)
};

}  // namespace orvanta
