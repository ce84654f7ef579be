#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Base of the models of replies, and the model of a reply that says nothing.
class OrvantaBaseResponseModel : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaBaseResponseModel, OrvantaBaseModel)
};

}  // namespace orvanta
