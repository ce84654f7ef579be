#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// Reports that the user denied the use of the advertising identifier.
class OrvantaDisableAdIdRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaDisableAdIdRequest, OrvantaRequestPathTypeDisableAdId,
                  OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("src", assign, std::int64_t, source, setSource)
};

}  // namespace orvanta
