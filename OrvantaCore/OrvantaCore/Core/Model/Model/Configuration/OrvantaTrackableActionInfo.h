#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// A control whose use is reported as OrvantaViewActionEvent. Received in OrvantaAppConfig.
class OrvantaTrackableActionInfo : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaTrackableActionInfo, OrvantaBaseModel)

  ORVANTA_PROPERTY("pt", copy, String, path, setPath)
  ORVANTA_PROPERTY("sc", copy, String, code, setCode)
  ORVANTA_PROPERTY("at", assign, std::int32_t, actionType, setActionType)
};

}  // namespace orvanta
