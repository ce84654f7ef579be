#pragma once

#include "orvanta/Model/Responses/OrvantaAppConfigResponse.h"

namespace orvanta {

/// Reply to OrvantaInitSessionRequest.
class OrvantaInitSessionResponse : public OrvantaAppConfigResponse {
  ORVANTA_MODEL(OrvantaInitSessionResponse, OrvantaAppConfigResponse)

  ORVANTA_PROPERTY("slt", strong, Number, slotId, setSlotId)
};

}  // namespace orvanta
