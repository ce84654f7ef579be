#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Basic facts about the device and the application. Sent in OrvantaInitSessionRequest.
class OrvantaAppDeviceInfo : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaAppDeviceInfo, OrvantaBaseModel)

  ORVANTA_PROPERTY("osV", copy, String, OSVersion, setOSVersion)
  ORVANTA_PROPERTY("appV", copy, String, appVersion, setAppVersion)
  ORVANTA_PROPERTY("oper", copy, String, carrierName, setCarrierName)
  /// A localization of the bundle, such as "en" or "pt-BR".
  ORVANTA_PROPERTY("lang", copy, String, locale, setLocale)
  ORVANTA_PROPERTY("mnf", copy, String, manufacturer, setManufacturer)
  ORVANTA_PROPERTY("mdl", copy, String, deviceModel, setDeviceModel)
};

}  // namespace orvanta
