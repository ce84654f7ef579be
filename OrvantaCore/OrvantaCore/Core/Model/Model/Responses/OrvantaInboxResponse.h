#pragma once

#include "orvanta/Model/Push/OrvantaPushObject.h"
#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

/// Reply to OrvantaFetchInboxRequest: a page of the inbox.
class OrvantaInboxResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaInboxResponse, OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("msgs", strong, Array, objects, setObjects, OrvantaPushObject)
  /// Selects the next page in its filter.
  ORVANTA_PROPERTY("prms", strong, Dictionary, pagingParams, setPagingParams)
  ORVANTA_PROPERTY("cnts", strong, Dictionary, counts, setCounts)
};

}  // namespace orvanta
