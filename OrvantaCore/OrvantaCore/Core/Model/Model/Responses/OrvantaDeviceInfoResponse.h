#pragma once

#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

/// The reply to the device information.
class OrvantaDeviceInfoResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaDeviceInfoResponse, OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("deeplink", copy, String, deeplink, setDeeplink)
};

}  // namespace orvanta
