#pragma once

#include "Device/OrvantaAppAllDeviceInfo.h"
#include "Requests/OrvantaBaseRequest.h"
#include "Responses/OrvantaDeviceInfoResponse.h"

namespace orvanta {

/// Tells everything about the device.
class OrvantaDeviceInfoRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaDeviceInfoRequest, OrvantaRequestPathTypeDeviceInfo,
                  OrvantaDeviceInfoResponse)

  ORVANTA_PROPERTY("device", strong, OrvantaAppAllDeviceInfo, info, setInfo,
                   OrvantaAppAllDeviceInfo)

  ORVANTA_INITIALISER(initWithDeviceInfo, init, info)
};

}  // namespace orvanta
