#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// Registers the device's push token.
class OrvantaRegisterPushRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaRegisterPushRequest, OrvantaRequestPathTypeRegisterPush,
                  OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("token", copy, String, deviceToken, setDeviceToken)

  ORVANTA_INITIALIZER(initWithDeviceToken, init, deviceToken)
};

}  // namespace orvanta
