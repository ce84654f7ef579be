#pragma once

#include "orvanta/Model/Actions/OrvantaAction.h"

namespace orvanta {

/// Asks the user to review the application. Has no parameters.
class OrvantaReviewAction : public OrvantaAction {
  ORVANTA_MODEL(OrvantaReviewAction, OrvantaAction)
};

}  // namespace orvanta
