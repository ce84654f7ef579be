#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// A screen whose display is reported as OrvantaShowViewEvent. Received in OrvantaAppConfig.
class OrvantaTrackableScreenInfo : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaTrackableScreenInfo, OrvantaBaseModel)

  ORVANTA_PROPERTY("pt", copy, String, path, setPath)
  ORVANTA_PROPERTY("sc", copy, String, code, setCode)
};

}  // namespace orvanta
