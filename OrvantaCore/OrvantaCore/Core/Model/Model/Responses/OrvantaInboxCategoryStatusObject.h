#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// The number of messages of a category, by status.
class OrvantaInboxCategoryStatusObject : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaInboxCategoryStatusObject, OrvantaBaseModel)

  ORVANTA_READONLY("1", assign, std::int64_t, readCount)
  ORVANTA_READONLY("2", assign, std::int64_t, unreadCount)
  ORVANTA_READONLY("4", assign, std::int64_t, deletedCount)
};

}  // namespace orvanta
