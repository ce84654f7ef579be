#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Base of the actions that run when the user opens a notification or taps one of its buttons.
/// Received in payloads; the class is named by "klazz".
class OrvantaAction : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaAction, OrvantaBaseModel)
};

}  // namespace orvanta
