#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// Reports that the user disabled notifications.
class OrvantaDisablePushRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaDisablePushRequest, OrvantaRequestPathTypeDisablePush,
                  OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("src", assign, std::int64_t, source, setSource)
};

}  // namespace orvanta
