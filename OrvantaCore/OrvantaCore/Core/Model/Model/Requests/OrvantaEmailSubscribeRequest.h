#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// The user allowed or refused e-mails.
class OrvantaEmailSubscribeRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaEmailSubscribeRequest, OrvantaRequestPathTypeEmailSubscribe,
                  OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("allowed", assign, bool, authorized, setAuthorized)
};

}  // namespace orvanta
