#pragma once

#include "orvanta/Model/Actions/OrvantaAction.h"

namespace orvanta {

/// Asks for a review of the application; its class says it all.
class OrvantaReviewAction : public OrvantaAction {
  ORVANTA_MODEL(OrvantaReviewAction, OrvantaAction)
};

}  // namespace orvanta
