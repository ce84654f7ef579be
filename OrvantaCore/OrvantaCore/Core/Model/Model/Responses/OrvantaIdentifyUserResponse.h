#pragma once

#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

/// Reply to OrvantaUpdateUserRequest.
class OrvantaIdentifyUserResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaIdentifyUserResponse, OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("uid", copy, String, userId, setUserId)
  ORVANTA_PROPERTY("slt", strong, Number, slotId, setSlotId)
};

}  // namespace orvanta
