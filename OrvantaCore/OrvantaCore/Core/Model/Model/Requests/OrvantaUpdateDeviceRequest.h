#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// Reports the advertising identifier.
class OrvantaUpdateDeviceRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaUpdateDeviceRequest, OrvantaRequestPathTypeUpdateDevice,
                  OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("adid", copy, String, advertisingId, setAdvertisingId)

  ORVANTA_INITIALIZER(initWithAdvertisingId, init, advertisingId)
};

}  // namespace orvanta
