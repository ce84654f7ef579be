#pragma once

#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

/// Reply to OrvantaDeviceInfoRequest.
class OrvantaDeviceInfoResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaDeviceInfoResponse, OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("deeplink", copy, String, deeplink, setDeeplink)
};

}  // namespace orvanta
