#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// A screen that is to be tracked.
class OrvantaTrackableScreenInfo : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaTrackableScreenInfo, OrvantaBaseModel)

  ORVANTA_PROPERTY("pt", copy, String, path, setPath)
  ORVANTA_PROPERTY("sc", copy, String, code, setCode)
};

}  // namespace orvanta
