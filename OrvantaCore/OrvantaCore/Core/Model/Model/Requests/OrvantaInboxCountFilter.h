#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Which messages of the inbox are counted.
class OrvantaInboxCountFilter : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaInboxCountFilter, OrvantaBaseModel)

  /// A mask of 1 (read), 2 (unread) and 4 (deleted).
  ORVANTA_PROPERTY("st", assign, std::uint64_t, status, setStatus)
  ORVANTA_PROPERTY("cats", strong, Array, categories, setCategories)
  ORVANTA_PROPERTY("ie", assign, bool, shouldIncludeExpiredObjects, setShouldIncludeExpiredObjects)

  /// Read and unread messages that have not expired.
  bool init() override;
};

}  // namespace orvanta
