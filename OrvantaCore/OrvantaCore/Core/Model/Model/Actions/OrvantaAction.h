#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// What a notification does when it is opened or one of its controls is used; the common type of
/// the actions.
class OrvantaAction : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaAction, OrvantaBaseModel)
};

}  // namespace orvanta
