#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Base of the replies; itself the model of a reply without data.
class OrvantaBaseResponseModel : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaBaseResponseModel, OrvantaBaseModel)
};

}  // namespace orvanta
