#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Responses/OrvantaRemoteConfigResponse.h"

namespace orvanta {

/// Fetches the remote configuration.
class OrvantaRemoteConfigRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaRemoteConfigRequest, OrvantaRequestPathTypeRemoteConfig,
                  OrvantaRemoteConfigResponse)

  ORVANTA_PROPERTY("rcv", copy, String, remoteConfigVersion, setRemoteConfigVersion)

  ORVANTA_INITIALIZER(initWithRemoteConfigVersion, init, remoteConfigVersion)
};

}  // namespace orvanta
