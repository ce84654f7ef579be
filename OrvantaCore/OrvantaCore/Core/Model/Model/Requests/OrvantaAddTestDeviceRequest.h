#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// Registers the device as a test device.
class OrvantaAddTestDeviceRequest : public OrvantaBaseRequest {
  ORVANTA_UNRANKED_REQUEST(OrvantaAddTestDeviceRequest, OrvantaRequestPathTypeAddTestDevice,
                           OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("prms", copy, String, params, setParams)

  ORVANTA_INITIALIZER(initWithQueryParameters, init, params)
};

}  // namespace orvanta
