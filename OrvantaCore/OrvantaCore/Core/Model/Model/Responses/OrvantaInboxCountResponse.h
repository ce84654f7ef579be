#pragma once

#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

/// Reply to OrvantaFetchInboxCountRequest.
class OrvantaInboxCountResponse : public OrvantaBaseResponseModel {
  ORVANTA_MODEL(OrvantaInboxCountResponse, OrvantaBaseResponseModel)

  /// Status, as a decimal string, to number of messages.
  ORVANTA_PROPERTY("cnts", strong, Dictionary, counts, setCounts)

  /// Returns the sum of the counts of every status that shares a bit with the mask (1 read,
  /// 2 unread, 4 deleted). A key or count that is neither a number nor a string counts as 0.
  std::int64_t countForStatus(std::uint64_t mask) const;
};

}  // namespace orvanta
