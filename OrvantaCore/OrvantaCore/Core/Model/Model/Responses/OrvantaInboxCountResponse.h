#pragma once

#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

/// How many messages of which status the inbox holds.
class OrvantaInboxCountResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaInboxCountResponse, OrvantaBaseResponseModel)

  /// Status, as text, to count.
  ORVANTA_PROPERTY("cnts", strong, Dictionary, counts, setCounts)

  /// The sum of the counts of every status that shares a bit with the mask (1 read, 2 unread,
  /// 4 deleted). What has no integer reading counts as 0.
  std::int64_t countForStatus(std::uint64_t mask) const;
};

}  // namespace orvanta
