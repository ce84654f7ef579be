#pragma once

#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"
#include "orvanta/Model/Responses/OrvantaInboxCategoryObject.h"

namespace orvanta {

/// The categories of the inbox.
class OrvantaInboxCategoryResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaInboxCategoryResponse, OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("prms", strong, Dictionary, pagingParams, setPagingParams)
  ORVANTA_PROPERTY("cnt", strong, Array, objects, setObjects, OrvantaInboxCategoryObject)
};

}  // namespace orvanta
