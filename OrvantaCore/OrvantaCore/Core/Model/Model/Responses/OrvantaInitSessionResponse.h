#pragma once

#include "orvanta/Model/Responses/OrvantaAppConfigResponse.h"

namespace orvanta {

/// The reply to the beginning of a session.
class OrvantaInitSessionResponse : public OrvantaAppConfigResponse {
  ORVANTA_MODEL(OrvantaInitSessionResponse, OrvantaAppConfigResponse)

  ORVANTA_PROPERTY("slt", strong, Number, slotId, setSlotId)
};

}  // namespace orvanta
