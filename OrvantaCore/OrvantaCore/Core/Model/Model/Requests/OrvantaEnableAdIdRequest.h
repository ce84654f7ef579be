#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// Reports that the user allowed the use of the advertising identifier.
class OrvantaEnableAdIdRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaEnableAdIdRequest, OrvantaRequestPathTypeEnableAdId,
                  OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("src", assign, std::int64_t, source, setSource)
};

}  // namespace orvanta
