#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// Reports that the user enabled notifications.
class OrvantaEnablePushRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaEnablePushRequest, OrvantaRequestPathTypeEnablePush,
                  OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("src", assign, std::int64_t, source, setSource)
};

}  // namespace orvanta
