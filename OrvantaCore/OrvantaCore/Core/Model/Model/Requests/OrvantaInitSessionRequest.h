#pragma once

#include "orvanta/Model/Device/OrvantaAppDeviceInfo.h"
#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Responses/OrvantaInitSessionResponse.h"

namespace orvanta {

/// Starts a session.
class OrvantaInitSessionRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaInitSessionRequest, OrvantaRequestPathTypeInitSession,
                  OrvantaInitSessionResponse)

  ORVANTA_PROPERTY("cfgV", strong, Number, appConfigVersion, setAppConfigVersion)
  ORVANTA_PROPERTY("info", strong, OrvantaAppDeviceInfo, appDeviceInfo, setAppDeviceInfo,
                   OrvantaAppDeviceInfo)
  /// kUnsetInteger if unset.
  ORVANTA_PROPERTY("tz", assign, std::int64_t, timeZoneOffset, setTimeZoneOffset)
  ORVANTA_PROPERTY("ts", strong, Date, creationDate, setCreationDate)
  ORVANTA_PROPERTY("an", assign, bool, isTurnedOffTracking, setIsTurnedOffTracking)

  /// Resets `timeZoneOffset` to kUnsetInteger, then reads.
  bool updateWithDictionary(const Dictionary* dictionary) override;
};

}  // namespace orvanta
