#pragma once

#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

/// Reply to OrvantaRemoteConfigRequest.
class OrvantaRemoteConfigResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaRemoteConfigResponse, OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("abTestId", assign, std::int32_t, abTestId, setAbTestId)
  ORVANTA_PROPERTY("abTestOptionId", assign, std::int32_t, abTestOptionId, setAbTestOptionId)
  ORVANTA_PROPERTY("remoteConfigVersion", assign, std::int32_t, remoteConfigVersion,
                   setRemoteConfigVersion)
  ORVANTA_PROPERTY("data", strong, Dictionary, data, setData)
};

}  // namespace orvanta
