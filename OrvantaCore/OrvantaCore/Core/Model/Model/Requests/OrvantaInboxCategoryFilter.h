#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Which categories of the inbox are asked for.
class OrvantaInboxCategoryFilter : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaInboxCategoryFilter, OrvantaBaseModel)

  /// A mask of 1 (read), 2 (unread) and 4 (deleted).
  ORVANTA_PROPERTY("st", assign, std::uint64_t, status, setStatus)
  ORVANTA_PROPERTY("ps", assign, std::int32_t, pageSize, setPageSize)
  ORVANTA_PROPERTY("ie", assign, bool, shouldIncludeExpiredObjects, setShouldIncludeExpiredObjects)
  /// Those of the reply with the page before.
  ORVANTA_PROPERTY("prms", strong, Dictionary, pagingParams, setPagingParams)

  /// Of read and unread messages that have not expired, on one page without limit.
  bool init() override;
};

}  // namespace orvanta
