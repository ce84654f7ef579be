#pragma once

#include "orvanta/Model/Device/OrvantaAppAllDeviceInfo.h"
#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Responses/OrvantaDeviceInfoResponse.h"

namespace orvanta {

/// Reports all facts about the device.
class OrvantaDeviceInfoRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaDeviceInfoRequest, OrvantaRequestPathTypeDeviceInfo,
                  OrvantaDeviceInfoResponse)

  ORVANTA_PROPERTY("device", strong, OrvantaAppAllDeviceInfo, info, setInfo,
                   OrvantaAppAllDeviceInfo)

  ORVANTA_INITIALIZER(initWithDeviceInfo, init, info)
};

}  // namespace orvanta
