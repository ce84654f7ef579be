#pragma once

#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"
#include "orvanta/Model/Responses/OrvantaInboxCategoryObject.h"

namespace orvanta {

/// Reply to OrvantaFetchInboxCategoryRequest. `pagingParams` select the next page in its filter.
class OrvantaInboxCategoryResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaInboxCategoryResponse, OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("prms", strong, Dictionary, pagingParams, setPagingParams)
  ORVANTA_PROPERTY("cnt", strong, Array, objects, setObjects, OrvantaInboxCategoryObject)
};

}  // namespace orvanta
