#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Selects messages of the inbox.
class OrvantaInboxFilter : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaInboxFilter, OrvantaBaseModel)

  /// Bit mask: 1 read, 2 unread, 4 deleted.
  ORVANTA_PROPERTY("st", assign, std::uint64_t, status, setStatus)
  ORVANTA_PROPERTY("cats", strong, Array, categories, setCategories)
  ORVANTA_PROPERTY("ps", assign, std::int32_t, pageSize, setPageSize)
  ORVANTA_PROPERTY("ie", assign, bool, shouldIncludeExpiredObjects, setShouldIncludeExpiredObjects)
  /// From the reply with the previous page; nil for the first page.
  ORVANTA_PROPERTY("prms", strong, Dictionary, pagingParams, setPagingParams)

  /// Selects read and unread messages that have not expired, all on one page.
  bool init() override;
};

}  // namespace orvanta
