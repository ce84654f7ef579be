#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// Reports whether the user subscribed to e-mails.
class OrvantaEmailSubscribeRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaEmailSubscribeRequest, OrvantaRequestPathTypeEmailSubscribe,
                  OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("allowed", assign, bool, authorized, setAuthorized)
};

}  // namespace orvanta
