#include "orvanta/Model/Configuration/OrvantaAppConfig.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaAppConfig)

bool OrvantaAppConfig::updateWithDictionary(const Dictionary* dictionary) {
  version_ = 0;
  shouldManageBadge_ = false;
  shouldSendLocationData_ = false;
  shouldSendAdvertisingId_ = false;
  shouldSendScreenEvent_ = false;
  sessionExpirationInterval_ = 180.0;
  cacheExpirationInterval_ = kNever;
  eventPostTimeInterval_ = kNever;
  eventPermission_ = 2;
  offlineEventPermission_ = true;
  return Super::updateWithDictionary(dictionary);
}

}  // namespace orvanta
