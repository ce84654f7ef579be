#pragma once

#include "orvanta/Model/Actions/OrvantaAction.h"

namespace orvanta {

/// Opens the share sheet. Has no parameters.
class OrvantaShareAction : public OrvantaAction {
  ORVANTA_MODEL(OrvantaShareAction, OrvantaAction)
};

}  // namespace orvanta
