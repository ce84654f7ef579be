#pragma once

#include "orvanta/Model/Configuration/OrvantaTrackableActionInfo.h"
#include "orvanta/Model/Configuration/OrvantaTrackableScreenInfo.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Notifications/OrvantaUserNotificationCategory.h"

namespace orvanta {

/// The application's configuration. Received in the replies to OrvantaAppConfigRequest and
/// OrvantaInitSessionRequest.
class OrvantaAppConfig : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaAppConfig, OrvantaBaseModel)

  ORVANTA_PROPERTY("v", strong, Number, version, setVersion)
  ORVANTA_PROPERTY("badge", assign, bool, shouldManageBadge, setShouldManageBadge)
  ORVANTA_PROPERTY("locHist", assign, bool, shouldSendLocationData, setShouldSendLocationData)
  /// Intervals are in seconds; kNever (2^63) does not elapse.
  ORVANTA_PROPERTY("sei", assign, double, sessionExpirationInterval, setSessionExpirationInterval)
  ORVANTA_PROPERTY("cei", assign, double, cacheExpirationInterval, setCacheExpirationInterval)
  ORVANTA_PROPERTY("sai", assign, bool, shouldSendAdvertisingId, setShouldSendAdvertisingId)
  ORVANTA_PROPERTY("url", copy, String, baseURL, setBaseURL)
  /// Dictionaries, as received.
  ORVANTA_PROPERTY("geofs", strong, Array, geofences, setGeofences)
  ORVANTA_PROPERTY("htmlTemps", strong, Dictionary, richPushTemplates, setRichPushTemplates)
  ORVANTA_PROPERTY("interCats", strong, Array, interactiveCategories, setInteractiveCategories,
                   OrvantaUserNotificationCategory)
  ORVANTA_PROPERTY("bte", assign, bool, shouldSendBatteryLevel, setShouldSendBatteryLevel)
  ORVANTA_PROPERTY("btl", assign, std::int32_t, batteryLevelLimit, setBatteryLevelLimit)
  ORVANTA_PROPERTY("scv", assign, bool, shouldSendScreenEvent, setShouldSendScreenEvent)
  ORVANTA_PROPERTY("ife", assign, bool, shouldSendInputFlow, setShouldSendInputFlow)
  ORVANTA_PROPERTY("ipe", assign, bool, shouldSendInAppPurchaseEvent,
                   setShouldSendInAppPurchaseEvent)
  ORVANTA_PROPERTY("exe", assign, bool, shouldTrackException, setShouldTrackException)
  ORVANTA_PROPERTY("tsv", strong, Array, trackableScreens, setTrackableScreens,
                   OrvantaTrackableScreenInfo)
  ORVANTA_PROPERTY("tsa", strong, Array, trackableActions, setTrackableActions,
                   OrvantaTrackableActionInfo)
  ORVANTA_PROPERTY("itd", assign, bool, isTestUser, setIsTestUser)
  ORVANTA_PROPERTY("ept", assign, double, eventPostTimeInterval, setEventPostTimeInterval)
  ORVANTA_PROPERTY("appKey", strong, String, appKey, setAppKey)
  ORVANTA_PROPERTY("ep", assign, std::int64_t, eventPermission, setEventPermission)
  ORVANTA_PROPERTY("oep", assign, bool, offlineEventPermission, setOfflineEventPermission)
  ORVANTA_PROPERTY("rcv", strong, String, remoteConfigVersion, setRemoteConfigVersion)

  static constexpr double kNever = 9223372036854775808.0;

  /// Resets ten properties to their defaults, then reads: `version` 0; `shouldManageBadge`,
  /// `shouldSendLocationData`, `shouldSendAdvertisingId`, `shouldSendScreenEvent` false;
  /// `sessionExpirationInterval` 180 s, the other two intervals kNever; `eventPermission` 2,
  /// `offlineEventPermission` true. Other properties that the dictionary lacks stay.
  bool updateWithDictionary(const Dictionary* dictionary) override;
};

}  // namespace orvanta
