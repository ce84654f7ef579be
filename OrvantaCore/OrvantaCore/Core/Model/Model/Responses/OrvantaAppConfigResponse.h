#pragma once

#include "Configuration/OrvantaAppConfig.h"
#include "Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

/// A reply with the configuration.
class OrvantaAppConfigResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaAppConfigResponse, OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("cfg", strong, OrvantaAppConfig, appConfig, setAppConfig, OrvantaAppConfig)
};

}  // namespace orvanta
