#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// Changes the status of messages in the inbox: 1 read, 2 unread, 4 deleted.
class OrvantaSetInboxStatusRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaSetInboxStatusRequest, OrvantaRequestPathTypeSetInboxStatus,
                  OrvantaBaseResponseModel)

  ORVANTA_PROPERTY("piids", strong, Array, pushInstanceIds, setPushInstanceIds)
  ORVANTA_PROPERTY("st", assign, std::uint64_t, status, setStatus)
  ORVANTA_PROPERTY("all", assign, bool, allObjects, setAllObjects)
  ORVANTA_PROPERTY("cats", strong, Array, categories, setCategories)

  ORVANTA_INITIALIZER(initWithPushInstanceIds, init, pushInstanceIds, status)
  ORVANTA_INITIALIZER(initWithPushCategories, init, categories, status)
  /// Changes all messages.
  bool initWithForAllObjectStatus(std::uint64_t status);
};

}  // namespace orvanta
