#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Selects the messages of the inbox to count.
class OrvantaInboxCountFilter : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaInboxCountFilter, OrvantaBaseModel)

  /// Bit mask: 1 read, 2 unread, 4 deleted.
  ORVANTA_PROPERTY("st", assign, std::uint64_t, status, setStatus)
  ORVANTA_PROPERTY("cats", strong, Array, categories, setCategories)
  ORVANTA_PROPERTY("ie", assign, bool, shouldIncludeExpiredObjects, setShouldIncludeExpiredObjects)

  /// Selects read and unread messages that have not expired.
  bool init() override;
};

}  // namespace orvanta
