#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"
#include "orvanta/Model/Responses/OrvantaInboxCategoryStatusObject.h"

namespace orvanta {

/// A category of the inbox.
class OrvantaInboxCategoryObject : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaInboxCategoryObject, OrvantaBaseModel)

  ORVANTA_PROPERTY("ct", copy, String, categoryName, setCategoryName)
  ORVANTA_PROPERTY("st", strong, OrvantaInboxCategoryStatusObject, status, setStatus,
                   OrvantaInboxCategoryStatusObject)
  ORVANTA_PROPERTY("ts", strong, Date, creationDate, setCreationDate)
  ORVANTA_READONLY("msg", strong, OrvantaPushObject, lastMessage, OrvantaPushObject)
};

}  // namespace orvanta
